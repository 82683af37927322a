// Great-circle distance and initial bearing on a sphere.

#pragma once

#include "geo/GeoPosition.h"

namespace geo {

inline constexpr double kEarthRadius = 6371.229;  // km

// Distance in km between two points given in decimal degrees: 0 to pi times the earth radius,
// exactly 0 for identical points. Points closer than about 90 m, away from the poles, are computed
// on a plane, because the haversine loses its digits there. Not finite only for coordinates, or a
// difference of longitudes, that are not.
double Distance(double latitude1, double latitude2, double longitude1, double longitude2);
double Distance(GeoPosition from, GeoPosition to);

// Bearing of the target from the start point, in degrees clockwise from EAST: east 0, south 90,
// west 180, north 270; 0 <= result < 360. `longitudeDifference` is target minus start. Identical
// points give 0.
double RawBearing(double startLatitude, double targetLatitude, double longitudeDifference);
double RawBearing(GeoPosition start, GeoPosition target);

// Both at once, for many points: cheaper than the two calls, same results.
struct DistanceAndBearing {
    double distance;    // km
    double rawBearing;  // degrees clockwise from east
};
DistanceAndBearing DistanceAndRawBearing(GeoPosition start, GeoPosition target);

}  // namespace geo
