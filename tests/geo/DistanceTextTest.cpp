#include "geo/DistanceText.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "geo/Distance.h"

namespace geo {
namespace {

constexpr auto kDegrees = DirectionMode::Degrees;
constexpr auto kCompassPoint = DirectionMode::CompassPoint;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

const base::NumberFormat kFormat(".");

// A target close to the equator in the given raw bearing, exact enough for two decimals.
GeoPosition TargetAt(double rawBearing)
{
    constexpr double kSmall = 1e-3;
    const double radians = rawBearing * 3.14159265358979 / 180.0;
    return {.latitude = -kSmall * std::sin(radians), .longitude = kSmall * std::cos(radians)};
}

TEST(DirectionText, CountsTheAzimuthFromNorth)
{
    const struct {
        GeoPosition start;
        GeoPosition target;
        const char* text;
    } cases[] = {
        {{.latitude = 48.0, .longitude = 11.0}, {.latitude = 49.0, .longitude = 11.0}, "0.00 Grad"},
        {{.latitude = 49.0, .longitude = 11.0},
         {.latitude = 48.0, .longitude = 11.0},
         "180.00 Grad"},
        {{.latitude = 0.0, .longitude = 10.0}, {.latitude = 0.0, .longitude = 11.0}, "90.00 Grad"},
        {{.latitude = 0.0, .longitude = 11.0}, {.latitude = 0.0, .longitude = 10.0}, "270.00 Grad"},
        {{.latitude = 48.0, .longitude = 11.0},
         {.latitude = 48.0, .longitude = 11.0},
         "90.00 Grad"},
        {{.latitude = 90.0, .longitude = 11.0},
         {.latitude = 90.0, .longitude = 11.0},
         "90.00 Grad"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(DirectionText(c.start, c.target, kDegrees, kFormat), c.text);
    }
}

TEST(DirectionText, NamesTheCompassPointAndTheAngleOffIt)
{
    const struct {
        double rawBearing;
        const char* text;
    } cases[] = {
        {0.0, "OST   + 0.00 Grad"},     {30.0, "OST   + 30.00 Grad"},
        {44.99, "OST   + 44.99 Grad"},  {45.01, "SUED  - 44.99 Grad"},
        {60.0, "SUED  - 30.00 Grad"},   {120.0, "SUED  + 30.00 Grad"},
        {150.0, "WEST  - 30.00 Grad"},  {200.0, "WEST  + 20.00 Grad"},
        {230.0, "NORD  - 40.00 Grad"},  {300.0, "NORD  + 30.00 Grad"},
        {314.99, "NORD  + 44.99 Grad"}, {315.01, "OST   - 44.99 Grad"},
        {350.0, "OST   - 10.00 Grad"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.rawBearing);
        EXPECT_EQ(DirectionText({}, TargetAt(c.rawBearing), kCompassPoint, kFormat), c.text);
    }
}

TEST(DirectionText, BeginsASectorWithItsEarlierEnd)
{
    ASSERT_EQ(RawBearing(0.0, -45.0, 90.0), 45.0);
    EXPECT_EQ(DirectionText({}, {-45.0, 90.0}, kCompassPoint, kFormat), "SUED  - 45.00 Grad");
}

TEST(DirectionText, OfCoincidentStationsIsEast)
{
    const GeoPosition place = {.latitude = 48.35, .longitude = 11.45};
    EXPECT_EQ(DirectionText(place, place, kCompassPoint, kFormat), "OST   + 0.00 Grad");
    EXPECT_EQ(DirectionText(place, place, kDegrees, kFormat), "90.00 Grad");
}

TEST(DirectionText, UsesTheGivenSeparator)
{
    EXPECT_EQ(DirectionText({}, {0.0, 1.0}, kDegrees, base::NumberFormat(",")), "90,00 Grad");
}

TEST(DirectionText, IsEmptyWithoutADirection)
{
    EXPECT_EQ(DirectionText({kNaN, 0.0}, {0.0, 1.0}, kDegrees, kFormat), "");
    EXPECT_EQ(DirectionText({}, {0.0, kNaN}, kCompassPoint, kFormat), "");
}

TEST(DistanceLine, ChoosesTheUnitByTheDistance)
{
    const struct {
        double kilometres;
        const char* text;
    } cases[] = {
        {0.0, "Entfernung = 0.000 mm"},         {0.0000099, "Entfernung = 9.900 mm"},
        {1e-5, "Entfernung = 0.010 m"},         {0.4, "Entfernung = 400.000 m"},
        {0.4999, "Entfernung = 499.900 m"},     {0.5, "Entfernung = 0.500 km"},
        {13.5927551, "Entfernung = 13.593 km"}, {kNaN, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(DistanceLine(c.kilometres, kFormat), c.text);
    }
    EXPECT_EQ(DistanceLine(0.4, base::NumberFormat(",")), "Entfernung = 400,000 m");
}

TEST(DistanceLine, ShowsKnownDistances)
{
    EXPECT_EQ(DistanceLine(Distance(48.0, 48.0005, 11.0, 11.0), kFormat), "Entfernung = 55.599 m");
    EXPECT_EQ(DistanceLine(Distance(0.0, 0.0, 0.0, 180.0), kFormat), "Entfernung = 20015.806 km");
    EXPECT_EQ(DistanceLine(Distance(48.0, 48.0, 11.0, 11.0), kFormat), "Entfernung = 0.000 mm");
}

}  // namespace
}  // namespace geo
