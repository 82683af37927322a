// Haversine distance and initial bearing on a sphere of radius kEarthRadius.
//
// A and B are the latitudes of start and target, C is target longitude minus start longitude, taken
// modulo 360 into -180..180 degrees, all in radians. Taken so, C is exactly 0 for one meridian,
// also where the longitudes name it differently (180 and -180).
//
// Bearing: in a frame whose axes at the start point are east, away from the earth and north, the
// target's unit vector has the east component X = sin C cos B and, counted to the south,
// V = sin A cos B cos C - cos A sin B; the raw bearing is the angle of (X, V).

#include "geo/Distance.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "geo/Radians.h"

namespace geo {

namespace {

// Short range: below this haversine (about 90.1 m) the points count as lying on a plane, unless the
// start point is within 0.97 degree of a pole, where the meridians are not parallel enough.
constexpr double kPlanarHaversine = 5e-11;
constexpr double kPlanarCosine = 0.017;

// Degrees, modulo 360 into -180..180. Exact: one turn taken off a difference of up to one and a
// half loses no digit.
double ReducedDifference(double degrees)
{
    if (!(std::fabs(degrees) < 540.0)) {
        return std::remainder(degrees, 360.0);
    }
    const int turns = static_cast<int>(degrees > 180.0) - static_cast<int>(degrees < -180.0);
    return degrees - 360.0 * turns;
}

// Two points and what both formulas need of them.
struct PointPair {
    double a;
    double b;
    double c;
    double sinA;
    double cosA;
    double sinB;
    double cosB;
    double sinC;
    double cosC;
};

inline PointPair MakePair(double startLatitude, double targetLatitude, double longitudeDifference)
{
    const double a = startLatitude * kRadiansPerDegree;
    const double b = targetLatitude * kRadiansPerDegree;
    const double c = ReducedDifference(longitudeDifference) * kRadiansPerDegree;
    // By half of C, because sine and cosine are quicker within a quarter turn.
    const double sinHalf = std::sin(c / 2.0);
    const double cosHalf = std::cos(c / 2.0);
    return {
        .a = a,
        .b = b,
        .c = c,
        .sinA = std::sin(a),
        .cosA = std::cos(a),
        .sinB = std::sin(b),
        .cosB = std::cos(b),
        .sinC = 2.0 * sinHalf * cosHalf,
        .cosC = 1.0 - 2.0 * sinHalf * sinHalf,
    };
}

inline double PairDistance(const PointPair& p)
{
    // The order of these operations decides on which side of the threshold a pair falls.
    const double h = (1.0 - p.cosA * p.cosB * p.cosC - p.sinA * p.sinB) / 2.0;
    if (h < kPlanarHaversine && p.cosA > kPlanarCosine) {
        const double north = p.a - p.b;
        const double east = p.cosA * p.c;
        return kEarthRadius * std::sqrt(north * north + east * east);
    }
    const bool identical = p.a == p.b && p.c == 0.0;  // h need not be 0 next to a pole
    if (h <= 0.0 || identical) {
        return 0.0;
    }
    if (h >= 1.0) {  // antipodes; by rounding h may be above 1
        return kEarthRadius * std::numbers::pi;
    }
    return 2.0 * kEarthRadius * std::atan(std::sqrt(h / (1.0 - h)));
}

// On one meridian the general formula leaves the sign of V to rounding when the points are close.
inline double MeridianRawBearing(const PointPair& p)
{
    const double south = std::sin(p.a - p.b);
    if (south < 0.0) {
        return 270.0;
    }
    return south > 0.0 ? 90.0 : south;  // 0 for coincident points, or not a number
}

inline double PairRawBearing(const PointPair& p)
{
    if (p.c == 0.0) {
        return MeridianRawBearing(p);
    }
    const double x = p.sinC * p.cosB;
    const double v = p.sinA * p.cosB * p.cosC - p.cosA * p.sinB;
    const double quotient = x == 0.0 ? v * 1e40 : v / x;
    // The arctangent covers the eastern half. What it lacks depends on whether the target lies west
    // and whether it lies north; a table, because the four cases come in no order.
    constexpr std::array<std::array<double, 2>, 2> kTurns = {{{0.0, 360.0}, {180.0, 180.0}}};
    const auto west = static_cast<std::size_t>(x < 0.0);
    const auto north = static_cast<std::size_t>(v < 0.0);
    const double bearing = std::atan(quotient) * kDegreesPerRadian + kTurns[west][north];
    return bearing >= 360.0 ? 0.0 : bearing;  // a hair north of east rounds to a full turn
}

}  // namespace

double Distance(double latitude1, double latitude2, double longitude1, double longitude2)
{
    return PairDistance(MakePair(latitude1, latitude2, longitude2 - longitude1));
}

double Distance(GeoPosition from, GeoPosition to)
{
    return Distance(from.latitude, to.latitude, from.longitude, to.longitude);
}

double RawBearing(double startLatitude, double targetLatitude, double longitudeDifference)
{
    return PairRawBearing(MakePair(startLatitude, targetLatitude, longitudeDifference));
}

double RawBearing(GeoPosition start, GeoPosition target)
{
    return RawBearing(start.latitude, target.latitude, target.longitude - start.longitude);
}

DistanceAndBearing DistanceAndRawBearing(GeoPosition start, GeoPosition target)
{
    const PointPair pair =
        MakePair(start.latitude, target.latitude, target.longitude - start.longitude);
    return {.distance = PairDistance(pair), .rawBearing = PairRawBearing(pair)};
}

}  // namespace geo
