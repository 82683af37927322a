// Great-circle distance and initial bearing on a sphere.
//
// The haversine is the one of R. W. Sinnott, "Virtues of the Haversine", Sky and Telescope 68
// (1984); the bearing is the azimuth of J. P. Snyder, "Map Projections - A Working Manual" (USGS
// 1395, 1987), counted from east. Longitudes are taken modulo 360.

#pragma once

#include "geo/GeoPosition.h"

namespace geo {

inline constexpr double kEarthRadius = 6371.229;  // km

// Distance in km between two points given in decimal degrees: 0 to pi times the earth radius,
// exactly 0 for identical points. Points closer than about 90 m, away from the poles, are computed
// on a plane, because the haversine loses its digits there. Not finite only for coordinates, or a
// difference of longitudes, that are not.
//
// Of the exact distance on the sphere it misses at most 2 mm up to 60 degrees of latitude, 15 mm up
// to 89, 20 cm next to a pole and to the antipodes.
double Distance(double latitude1, double latitude2, double longitude1, double longitude2);
double Distance(GeoPosition from, GeoPosition to);

// Bearing of the target from the start point, in degrees clockwise from EAST: east 0, south 90,
// west 180, north 270; 0 <= result < 360. `longitudeDifference` is target minus start. Identical
// points give 0; so does whatever rounds to 360. Within 1e-9 degrees from 1 km to 1 km before the
// antipodes. Not finite only for coordinates that are not.
double RawBearing(double startLatitude, double targetLatitude, double longitudeDifference);
double RawBearing(GeoPosition start, GeoPosition target);

// Both at once, for many points: cheaper than the two calls, same results.
struct DistanceAndBearing {
    double distance;    // km
    double rawBearing;  // degrees clockwise from east
};
DistanceAndBearing DistanceAndRawBearing(GeoPosition start, GeoPosition target);

}  // namespace geo
