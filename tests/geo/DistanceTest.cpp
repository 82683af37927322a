#include "geo/Distance.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "geo/RandomPairs.h"

namespace geo {
namespace {

constexpr double kHalfTurn = kEarthRadius * std::numbers::pi;  // km
constexpr double kMillimetre = 1e-6;                           // km

// Central angle by the arctangent of cross and dot product in extended precision, which keeps its
// digits at every distance.
double ReferenceDistance(GeoPosition from, GeoPosition to)
{
    constexpr long double kRadian = std::numbers::pi_v<long double> / 180.0L;
    const long double a = from.latitude * kRadian;
    const long double b = to.latitude * kRadian;
    const long double c = (static_cast<long double>(to.longitude) - from.longitude) * kRadian;
    const long double east = std::cos(b) * std::sin(c);
    const long double north = std::cos(a) * std::sin(b) - std::sin(a) * std::cos(b) * std::cos(c);
    const long double along = std::sin(a) * std::sin(b) + std::cos(a) * std::cos(b) * std::cos(c);
    return static_cast<double>(kEarthRadius * std::atan2(std::hypot(east, north), along));
}

// The bearing by turning the start point to the pole, step by step: the derivation of which
// RawBearing is the closed form.
double StepwiseRawBearing(double startLatitude, double targetLatitude, double longitudeDifference)
{
    constexpr double pi = std::numbers::pi;
    const double a1 = startLatitude * pi / 180.0;
    const double a2 = targetLatitude * pi / 180.0;
    const double a3 = longitudeDifference * pi / 180.0;
    const double c1 = pi / 2.0 - a1;
    const double x = std::sin(a3) * std::cos(a2);
    const double y = std::cos(a3) * std::cos(a2);
    const double z = std::sin(a2);
    const double q = std::sqrt(y * y + z * z);
    double t = std::atan(y == 0.0 ? z * 1e40 : z / y);
    if (y < 0.0) {
        t = pi + t;
    }
    const double v = std::cos(c1 + t) * q;
    double w = std::atan(x == 0.0 ? v * 1e40 : v / x);
    if (x < 0.0) {
        w = pi + w;
    }
    const double degrees = w * 180.0 / pi;
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

double AngleBetween(double bearing1, double bearing2)
{
    return std::fabs(std::remainder(bearing1 - bearing2, 360.0));
}

// Largest difference from the reference in km.
double LargestError(double latitudeLimit, double nearest, double farthest, int count)
{
    RandomPairs pairs(latitudeLimit, nearest, farthest);
    double largest = 0.0;
    for (int i = 0; i < count; ++i) {
        const auto [start, target] = pairs.Next();
        largest = std::max(largest,
                           std::fabs(Distance(start, target) - ReferenceDistance(start, target)));
    }
    testing::Test::RecordProperty("largest_error_mm", std::to_string(largest / kMillimetre));
    return largest;
}

TEST(Distance, AgreesWithExtendedPrecisionTo2MillimetresBelow60Degrees)
{
    EXPECT_LT(LargestError(60.0, 0.001, 19900.0, 300000), 2.0 * kMillimetre);
}

// On the plane the meridians count as parallel, with the start point's spacing. Over d = 90 m that
// is wrong by 0.385 d^2 / 2R times the tangent of the latitude at the most: 0.4 mm at 60 degrees,
// 14 mm at 89.
TEST(Distance, AgreesTo15MillimetresBelow89Degrees)
{
    EXPECT_LT(LargestError(89.0, 0.001, 19900.0, 300000), 15.0 * kMillimetre);
}

// Next to a pole short distances come from the haversine, whose last digit is worth 2R times the
// square root of 1e-16; the same holds of 1 - h near the antipodes.
TEST(Distance, AgreesTo20CentimetresEverywhere)
{
    EXPECT_LT(LargestError(90.0, 0.001, 20015.8, 300000), 200.0 * kMillimetre);

    std::mt19937_64 random(9);
    std::uniform_real_distribution<double> fromPole(0.0, 1.0);
    std::uniform_real_distribution<double> step(-1e-4, 1e-4);
    std::uniform_real_distribution<double> longitude(-180.0, 180.0);
    for (int i = 0; i < 100000; ++i) {
        const GeoPosition start = {.latitude = 90.0 - fromPole(random),
                                   .longitude = longitude(random)};
        const GeoPosition target = {.latitude = std::min(start.latitude + step(random), 90.0),
                                    .longitude = start.longitude + 100.0 * step(random)};
        ASSERT_NEAR(Distance(start, target), ReferenceDistance(start, target), 200.0 * kMillimetre);
        const GeoPosition antipode = {.latitude = -target.latitude,
                                      .longitude = target.longitude + 180.0};
        ASSERT_NEAR(Distance(start, antipode), ReferenceDistance(start, antipode),
                    200.0 * kMillimetre);
    }
}

TEST(Distance, IsExactlyZeroForIdenticalPositions)
{
    RandomPairs pairs(90.0, 0.001, 20000.0);
    for (int i = 0; i < 100000; ++i) {
        const GeoPosition place = pairs.Next().start;
        ASSERT_EQ(Distance(place, place), 0.0) << place.latitude;
        const GeoPosition nextToPole = {.latitude = 90.0 - place.latitude * 1e-3,
                                        .longitude = place.longitude};
        ASSERT_EQ(Distance(nextToPole, nextToPole), 0.0) << nextToPole.latitude;
    }
    for (const double latitude : {90.0, -90.0, 89.9999, 89.5, 0.0}) {
        SCOPED_TRACE(latitude);
        EXPECT_EQ(Distance(latitude, latitude, 11.0, 11.0), 0.0);
        EXPECT_EQ(Distance(latitude, latitude, 180.0, -180.0), 0.0) << "one meridian, two names";
    }
}

TEST(Distance, IsAPlaneBelow90Metres)
{
    EXPECT_NEAR(Distance(48.0, 48.0005, 11.0, 11.0), 0.055599, 5e-7);
    const double north = 0.0005 * std::numbers::pi / 180.0 * kEarthRadius;
    EXPECT_NEAR(Distance(48.0, 48.0005, 11.0, 11.0), north, 1e-12);
    EXPECT_NEAR(Distance(60.0, 60.0, 11.0, 11.0005), north / 2.0, 1e-12);
    EXPECT_NEAR(Distance(48.0, 48.0 + 1e-9, 11.0, 11.0), 1.112e-7, 1e-10)
        << "a tenth of a millimetre";
}

TEST(Distance, KeepsNoStepWhereThePlaneEnds)
{
    double previous = 0.0;
    for (int i = 0; i <= 1000; ++i) {
        const double distance = Distance(48.0, 48.00075 + i * 1e-7, 11.0, 11.0);
        ASSERT_GT(distance, previous);
        previous = distance;
    }
    EXPECT_GT(previous, 0.0945);
}

TEST(Distance, CrossesTheDateLine)
{
    const double across = Distance(10.0, 10.0, 179.99993, -179.99993);
    EXPECT_NEAR(across, Distance(10.0, 10.0, 0.0, 0.00014), 1e-9);
    EXPECT_NEAR(across, 0.01533, 1e-5);
    EXPECT_NEAR(Distance(10.0, 10.0, -179.99993, 179.99993), across, 1e-12);
}

TEST(Distance, OfAntipodesIsHalfATurn)
{
    EXPECT_NEAR(Distance(0.0, 0.0, 0.0, 180.0), kHalfTurn, 1e-9);
    EXPECT_NEAR(Distance(90.0, -90.0, 0.0, 0.0), kHalfTurn, 1e-9);
    RandomPairs pairs(90.0, 0.001, 20000.0);
    for (int i = 0; i < 100000; ++i) {
        const GeoPosition place = pairs.Next().start;
        const double distance =
            Distance(place.latitude, -place.latitude, place.longitude, place.longitude + 180.0);
        ASSERT_NEAR(distance, kHalfTurn, 200.0 * kMillimetre) << place.latitude;
        ASSERT_LE(distance, kHalfTurn);
    }
}

TEST(Distance, TakesBothFormsOfItsArguments)
{
    const GeoPosition home = {.latitude = 48.35, .longitude = 11.45};
    const GeoPosition other = {.latitude = -33.9, .longitude = 151.2};
    EXPECT_EQ(Distance(home, other), Distance(48.35, -33.9, 11.45, 151.2));
}

TEST(RawBearing, IsExactInTheMainDirections)
{
    const struct {
        double start;
        double target;
        double difference;
        double bearing;
    } cases[] = {
        {0.0, 0.0, 1.0, 0.0},        // east
        {0.0, 0.0, -1.0, 180.0},     // west
        {48.0, 49.0, 0.0, 270.0},    // north
        {49.0, 48.0, 0.0, 90.0},     // south
        {49.0, 48.0, -0.0, 90.0},    //
        {48.0, 90.0, 0.0, 270.0},    // to the pole
        {90.0, 48.0, 0.0, 90.0},     // from the pole
        {-90.0, 48.0, 0.0, 270.0},   //
        {48.0, 49.0, 360.0, 270.0},  // the same meridian by another name
        {48.0, 47.0, -360.0, 90.0},  //
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.start);
        SCOPED_TRACE(c.target);
        EXPECT_EQ(RawBearing(c.start, c.target, c.difference), c.bearing);
    }
}

TEST(RawBearing, IsExactOnOneMeridianHoweverNearThePoints)
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> latitudes(-90.0, 90.0);
    for (int i = 0; i < 100000; ++i) {
        const double latitude = latitudes(random);
        const double north = latitude + std::ldexp(std::fabs(latitude) + 1.0, -(i % 51));
        ASSERT_EQ(RawBearing(latitude, std::min(north, 90.0), 0.0), 270.0) << latitude;
        ASSERT_EQ(RawBearing(std::min(north, 90.0), latitude, 0.0), 90.0) << latitude;
    }
}

TEST(RawBearing, IsExactlyZeroForIdenticalPositions)
{
    std::mt19937_64 random(8);
    std::uniform_real_distribution<double> latitudes(-90.0, 90.0);
    for (int i = 0; i < 100000; ++i) {
        const double latitude = latitudes(random);
        ASSERT_EQ(RawBearing(latitude, latitude, 0.0), 0.0) << latitude;
        ASSERT_EQ(RawBearing(latitude, latitude, -0.0), 0.0) << latitude;
        ASSERT_EQ(RawBearing(latitude, latitude, 360.0), 0.0) << latitude;
    }
    for (const double pole : {90.0, -90.0}) {
        EXPECT_EQ(RawBearing(pole, pole, 0.0), 0.0);
    }
}

TEST(RawBearing, StaysBelowAFullTurn)
{
    // Due east along a parallel starts a little to the north of it.
    EXPECT_LT(RawBearing(48.0, 48.0, 1e-14), 360.0);
    EXPECT_EQ(RawBearing(0.0, 1e-20, 10.0), 0.0);
    EXPECT_LT(RawBearing(0.0, 1e-10, 10.0), 360.0);
    EXPECT_GT(RawBearing(0.0, 1e-10, 10.0), 359.0);
}

// The steps lose some 1e-16 of the sphere's radius, the closed form less: over 1 km that is 1e-10
// degrees, and the more the closer the points, or their antipodes, are.
TEST(RawBearing, AgreesWithItsDerivationStepByStep)
{
    RandomPairs pairs(89.9, 1.0, 20014.0);
    for (int i = 0; i < 300000; ++i) {
        const auto [start, target] = pairs.Next();
        const double difference = target.longitude - start.longitude;
        const double expected = StepwiseRawBearing(start.latitude, target.latitude, difference);
        const double bearing = RawBearing(start.latitude, target.latitude, difference);
        ASSERT_LT(AngleBetween(bearing, expected), 1e-9)
            << start.latitude << ' ' << target.latitude << ' ' << difference;
        ASSERT_GE(bearing, 0.0);
        ASSERT_LT(bearing, 360.0);
    }
}

TEST(DistanceAndRawBearing, GivesWhatTheTwoFunctionsGive)
{
    RandomPairs pairs(90.0, 0.001, 20015.0);
    for (int i = 0; i < 100000; ++i) {
        const auto [start, target] = pairs.Next();
        const DistanceAndBearing both = DistanceAndRawBearing(start, target);
        ASSERT_EQ(both.distance, Distance(start, target));
        ASSERT_EQ(both.rawBearing, RawBearing(start, target));
    }
}

}  // namespace
}  // namespace geo
