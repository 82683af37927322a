#include "geo/GaussKrueger.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace geo {
namespace {

constexpr std::uint8_t kWgs84 = 0;
constexpr std::uint8_t kEd50 = 1;
constexpr double kMetresPerDegree = 111200.0;

// Strip number that the easting names.
double StripOf(double longitude)
{
    return std::floor(GeoGk({.latitude = 48.0, .longitude = longitude}, kEd50).easting / 1e6);
}

TEST(GeoGk, ChoosesTheStripByTheLongitude)
{
    const struct {
        double longitude;
        double strip;
    } cases[] = {
        {10.5, 4.0},   {10.4999, 3.0},     {7.5, 3.0},    {9.0, 3.0},     {0.0, 0.0},
        {-2.0, 119.0}, {-1.49999998, 0.0}, {-1.5, 120.0}, {-179.0, 60.0}, {180.0, 60.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.longitude);
        EXPECT_EQ(StripOf(c.longitude), c.strip);
    }
}

TEST(GeoGk, CountsFromTheCentralMeridianAndTheEquator)
{
    const GridPosition origin = GeoGk({.latitude = 0.0, .longitude = 9.0}, kEd50);
    EXPECT_EQ(origin.easting, 3500000.0);
    EXPECT_EQ(origin.northing, 0.0);
    EXPECT_NEAR(GeoGk({.latitude = 90.0, .longitude = 9.0}, kEd50).northing, 10000855.7646, 0.002)
        << "the meridian quadrant of the inverse";
}

TEST(GeoGk, AddsTheOffsetOfTheDatumSetting)
{
    const GeoPosition position = {.latitude = 48.3125, .longitude = 11.625};
    const GridPosition plain = GeoGk(position, kEd50);
    const GridPosition shifted = GeoGk(position, kWgs84);
    EXPECT_NEAR(shifted.easting - plain.easting, 73.0, 1e-8);
    EXPECT_NEAR(shifted.northing - plain.northing, 95.0, 1e-8);
    constexpr std::array<std::uint8_t, 3> kOthers = {2, 7, 255};
    for (const std::uint8_t other : kOthers) {
        EXPECT_EQ(GeoGk(position, other).easting, plain.easting);
        EXPECT_EQ(GkToGeo(plain, other), GkToGeo(plain, kEd50));
    }
}

// The published series has 5 - 18 t^2 + t^4 in place of 5 - 18 t^6.
TEST(GeoGk, KeepsTheSixthPowerInTheFifthOrderTerm)
{
    const double t2 = 3.0;  // at 60 degrees
    const double eta2 = 0.0067192188 / 4.0;
    const double n = 6398786.849 / std::sqrt(1.0 + eta2);
    const double m = 1.2 / 57.29577951308232 / 2.0;
    const double easting = n * m + n * std::pow(m, 3) * (1.0 - t2 + eta2) / 6.0
                           + n * std::pow(m, 5) * (5.0 - 18.0 * 27.0) / 120.0;
    EXPECT_NEAR(GeoGk({.latitude = 60.0, .longitude = 10.2}, kEd50).easting, 3500000.0 + easting,
                1e-6);
}

TEST(GkToGeo, ReadsTheStripFromTheWholeMillions)
{
    EXPECT_NEAR(GkToGeo({.easting = 4500000.0, .northing = 5e6}, kEd50).longitude, 12.0, 1e-12);
    EXPECT_NEAR(GkToGeo({.easting = 500000.0, .northing = 5e6}, kEd50).longitude, 0.0, 1e-12);
    EXPECT_NEAR(GkToGeo({.easting = 4500073.0, .northing = 5e6}, kWgs84).longitude, 12.0, 1e-12);
    // Truncated towards zero: strip -1 with 1000 km west of its meridian.
    EXPECT_LT(GkToGeo({.easting = -1500000.0, .northing = 5e6}, kEd50).longitude, -3.0);
    EXPECT_GT(GkToGeo({.easting = -1500000.0, .northing = 5e6}, kEd50).longitude, -20.0);
}

TEST(GkToGeo, GivesBackEuropeTo5Centimetres)
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> latitudes(35.0, 70.0);
    std::uniform_real_distribution<double> longitudes(1.5, 19.5);  // strips 1 to 6
    for (int i = 0; i < 300000; ++i) {
        const GeoPosition position = {.latitude = latitudes(random),
                                      .longitude = longitudes(random)};
        const std::uint8_t datum = i % 2 == 0 ? kEd50 : kWgs84;
        const GeoPosition back = GkToGeo(GeoGk(position, datum), datum);
        const double parallel = kMetresPerDegree * std::cos(position.latitude / 57.3);
        ASSERT_LT(std::fabs(back.latitude - position.latitude) * kMetresPerDegree, 0.05);
        ASSERT_LT(std::fabs(back.longitude - position.longitude) * parallel, 0.05)
            << position.latitude << ' ' << position.longitude;
    }
}

TEST(GridText, HasSevenDigits)
{
    const base::NumberFormat format;
    EXPECT_EQ(GridText(4472188.32, format), "4472188");
    EXPECT_EQ(GridText(500000.0, format), "0500000");
    EXPECT_EQ(GridText(119574000.0, format), "119574000");
    EXPECT_EQ(GridText(-0.2, format), "0000000");
    EXPECT_EQ(GridText(-1234.5, format), "-0001235");
    EXPECT_EQ(GridText(std::numeric_limits<double>::quiet_NaN(), format), "");
}

}  // namespace
}  // namespace geo
