// Haversine distance and initial bearing on a sphere of radius kEarthRadius.
//
// A and B are the latitudes of start and target, C is target longitude minus start longitude, taken
// modulo 360 into -180..180 degrees, all in radians. Taken so, C is exactly 0 for one meridian,
// also where the longitudes name it differently (180 and -180).
//
// Bearing: in a frame whose axes at the start point are east, away from the earth and north, the
// target's unit vector has the east component X = sin C cos B and, counted to the south,
//   V = sin A cos B cos C - cos A sin B = sin(A - B) - sin A cos B (1 - cos C);
// the raw bearing is the angle of (X, V). The second form of V is used because it keeps its sign
// for two points of one meridian however close they are: due north and due south are exact, and
// coincident points have X = V = 0.

#include "geo/Distance.h"

#include <cmath>
#include <numbers>

#include "geo/Radians.h"

namespace geo {

namespace {

// Short range: below this haversine (about 90.1 m) the points count as lying on a plane, unless the
// start point is within 0.97 degree of a pole, where the meridians are not parallel enough.
constexpr double kPlanarHaversine = 5e-11;
constexpr double kPlanarCosine = 0.017;

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

PointPair MakePair(double startLatitude, double targetLatitude, double longitudeDifference)
{
    const double reduced = std::fabs(longitudeDifference) <= 180.0
                               ? longitudeDifference
                               : std::remainder(longitudeDifference, 360.0);
    const double a = startLatitude * kRadiansPerDegree;
    const double b = targetLatitude * kRadiansPerDegree;
    const double c = reduced * kRadiansPerDegree;
    return {
        .a = a,
        .b = b,
        .c = c,
        .sinA = std::sin(a),
        .cosA = std::cos(a),
        .sinB = std::sin(b),
        .cosB = std::cos(b),
        .sinC = std::sin(c),
        .cosC = std::cos(c),
    };
}

double PairDistance(const PointPair& p)
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
    return 2.0 * kEarthRadius * std::atan(std::sqrt(h) / std::sqrt(1.0 - h));
}

double PairRawBearing(const PointPair& p)
{
    // 0 is added to turn a negative zero positive: atan2(0, -0.0) would be half a turn.
    const double x = p.sinC * p.cosB + 0.0;
    const double v = std::sin(p.a - p.b) - p.sinA * p.cosB * (1.0 - p.cosC);
    const double bearing = std::atan2(v, x) * kDegreesPerRadian;
    if (bearing >= 0.0) {
        return bearing;
    }
    const double turned = bearing + 360.0;
    return turned >= 360.0 ? 0.0 : turned;  // a hair north of east rounds to a full turn
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
