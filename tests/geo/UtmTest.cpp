#include "geo/Utm.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace geo {
namespace {

constexpr double kMetresPerDegree = 111700.0;

TEST(GeoUTM, ChoosesTheZoneByTheLongitude)
{
    const struct {
        double longitude;
        int zone;
    } cases[] = {
        {11.625, 32}, {6.0, 32},   {5.999999, 31}, {-180.0, 1},  {-0.000001, 30},
        {0.0, 31},    {179.9, 60}, {180.0, 61},    {-186.1, -1}, {200.0, 64},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.longitude);
        EXPECT_EQ(GeoUTM({.latitude = 48.0, .longitude = c.longitude}).zone, c.zone);
    }
}

TEST(GeoUTM, SaturatesTheZone)
{
    EXPECT_EQ(GeoUTM({.latitude = 48.0, .longitude = 1e300}).zone, 32767);
    EXPECT_EQ(GeoUTM({.latitude = 48.0, .longitude = -1e300}).zone, -32768);
}

TEST(GeoUTM, CountsFromTheCentralMeridianAndTheEquator)
{
    const UtmPosition origin = GeoUTM({.latitude = 0.0, .longitude = 9.0});
    EXPECT_EQ(origin.easting, 500000.0);
    EXPECT_EQ(origin.northing, 0.0);
}

TEST(GeoUTM, HasNegativeNorthingsInTheSouth)
{
    const UtmPosition north = GeoUTM({.latitude = 33.9, .longitude = 18.4});
    const UtmPosition south = GeoUTM({.latitude = -33.9, .longitude = 18.4});
    EXPECT_EQ(south.northing, -north.northing);
    EXPECT_EQ(south.easting, north.easting);
    EXPECT_LT(south.northing, -3.7e6);
}

TEST(GeoUTM, StaysFiniteAtThePoles)
{
    const UtmPosition pole = GeoUTM({.latitude = 90.0, .longitude = 11.0});
    EXPECT_NEAR(pole.easting, 500000.0, 1e-6);
    EXPECT_NEAR(pole.northing, 0.9996 * 10001965.729, 0.001) << "the meridian quadrant";
}

TEST(UtmToGeo, TakesTheZoneAsTyped)
{
    EXPECT_EQ(UtmToGeo(32.0, 500000.0, 5.35e6).longitude, 9.0);
    EXPECT_EQ(UtmToGeo(32.5, 500000.0, 5.35e6).longitude, 12.0);
    EXPECT_EQ(UtmToGeo(0.0, 500000.0, 0.0), (GeoPosition{.latitude = 0.0, .longitude = -183.0}));
}

TEST(UtmToGeo, GivesBackEveryZoneToAMillimetre)
{
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> latitudes(-80.0, 84.0);
    std::uniform_real_distribution<double> longitudes(-180.0, 180.0);
    for (int i = 0; i < 300000; ++i) {
        const GeoPosition position = {.latitude = latitudes(random),
                                      .longitude = longitudes(random)};
        const UtmPosition utm = GeoUTM(position);
        const GeoPosition back = UtmToGeo(utm.zone, utm.easting, utm.northing);
        const double parallel = kMetresPerDegree * std::cos(position.latitude / 57.2957795);
        ASSERT_LT(std::fabs(back.latitude - position.latitude) * kMetresPerDegree, 0.001);
        ASSERT_LT(std::fabs(back.longitude - position.longitude) * parallel, 0.001)
            << position.latitude << ' ' << position.longitude;
    }
}

}  // namespace
}  // namespace geo
