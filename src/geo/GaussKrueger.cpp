// Transverse Mercator series in powers of the distance from the strip's central meridian, on the
// Bessel ellipsoid, scale 1 on the meridian. Metres and radians, where not said otherwise.
//
// `eta2` is e'^2 times the squared cosine of the latitude, `n` the radius of curvature across the
// meridian, `t` the tangent of the latitude. These are the classical Gauss-Krüger series of the
// German surveys, northing to the 4th and easting to the 5th power; the powers are nested instead
// of summed one by one.
//
// Deliberate departure: the fifth-order term of the easting has the factor 5 - 18 t^6 where the
// published series has 5 - 18 t^2 + t^4. It stays, so that eastings noted from this program come
// out again to the metre; at the edge of a strip it moves them by 2 mm at 50 and by 23 mm at 70
// degrees of latitude.

#include "geo/GaussKrueger.h"

#include <array>
#include <cmath>

#include "base/Rounding.h"
#include "geo/Radians.h"
#include "geo/Series.h"

namespace geo {

namespace {

// Bessel ellipsoid: polar radius of curvature and second eccentricity squared.
constexpr double kPolarRadius = 6398786.849;
constexpr double kEccentricity2 = 0.0067192188;

// Meridian arc: metres per degree, and the terms in the sines of 2, 4, 6 and 8 times the latitude.
constexpr double kArcPerDegree = 111120.61962;
constexpr std::array kArcTerms = {-15988.63853, 16.72995, -0.02178, 0.00003};

// Inverse: length of the meridian quadrant, and the footpoint latitude in seconds of arc as a
// series in powers of the share of it.
constexpr double kQuadrant = 10000855.7646;
constexpr double kFootpointFactor = 325632.08677 / 3600.0 * kRadiansPerDegree;

constexpr double kStripWidth = 3.0;  // degrees
constexpr double kFalseEasting = 500000.0;
constexpr double kStripStep = 1000000.0;

// Longitudes west of here count on from 360. Not -1.5 itself: the western edge of strip 0 belongs
// to strip 120.
constexpr double kWesternEnd = -1.49999999;

// Datum adjustments by the setting: "WGS84 (nur Süddeutschl.)", "ED50".
constexpr std::array<GridPosition, 2> kDatumOffset = {
    GridPosition{.easting = 73.0, .northing = 95.0},
    GridPosition{.easting = 0.0, .northing = 0.0},
};

const GridPosition& DatumOffset(std::uint8_t datum)
{
    return kDatumOffset[datum == 0 ? 0 : 1];
}

double FootpointLatitude(double northing)
{
    const double sigma = northing * (1.0 / kQuadrant);
    return kFootpointFactor * sigma
           * Polynomial(sigma * sigma, 1.0, -0.00831729565, 0.00424914906, -0.00113566119,
                        0.00022976983, -4.36398e-05, 5.62025e-06);
}

}  // namespace

GridPosition GeoGk(GeoPosition position, std::uint8_t datum)
{
    const double latitude = position.latitude * kRadiansPerDegree;
    const double sine = std::sin(latitude);
    const double cosine = std::cos(latitude);
    const double cosine2 = cosine * cosine;
    const double arc = kArcPerDegree * position.latitude
                       + SineSeries(kArcTerms, 2.0 * sine * cosine, 2.0 * cosine2 - 1.0);
    const double eta2 = kEccentricity2 * cosine2;
    const double n = kPolarRadius / std::sqrt(1.0 + eta2);
    const double t = sine / cosine;
    const double t2 = t * t;

    const double longitude =
        position.longitude < kWesternEnd ? position.longitude + 360.0 : position.longitude;
    const double strip = std::floor((longitude + kStripWidth / 2.0) / kStripWidth);
    const double m = (longitude - kStripWidth * strip) * kRadiansPerDegree * cosine;
    const double m2 = m * m;

    const double north4 = 5.0 - t2 + 9.0 * eta2;
    const double north = n * t * m2 * Polynomial(m2, 1.0 / 2.0, north4 * (1.0 / 24.0));
    const double east3 = 1.0 - t2 + eta2;
    const double east5 = 5.0 - 18.0 * t2 * t2 * t2;
    const double east = n * m * Polynomial(m2, 1.0, east3 * (1.0 / 6.0), east5 * (1.0 / 120.0));

    const GridPosition& offset = DatumOffset(datum);
    return {
        .easting = east + strip * kStripStep + kFalseEasting + offset.easting,
        .northing = arc + north + offset.northing,
    };
}

GeoPosition GkToGeo(GridPosition grid, std::uint8_t datum)
{
    const GridPosition& offset = DatumOffset(datum);
    const double easting = grid.easting - offset.easting;
    const auto strip = base::Saturate<std::int16_t>(easting / kStripStep);
    const double y = easting - kStripStep * strip - kFalseEasting;

    const double footpoint = FootpointLatitude(grid.northing - offset.northing);
    const double sine = std::sin(footpoint);
    const double cosine = std::cos(footpoint);
    const double secant = 1.0 / cosine;
    const double t = sine * secant;
    const double t2 = t * t;
    const double eta2 = kEccentricity2 * cosine * cosine;
    const double q = y * (1.0 / kPolarRadius) * std::sqrt(1.0 + eta2);  // y / n
    const double q2 = q * q;

    const double north4 = 5.0 + 3.0 * t2 + 6.0 * eta2 - 6.0 * eta2 * t2;
    const double north =
        q2 * t * Polynomial(q2, (1.0 + eta2) * (1.0 / 2.0), north4 * (-1.0 / 24.0));
    const double east3 = 1.0 + 2.0 * t2 + eta2;
    const double east5 = 1.0 + 28.0 * t2 + 24.0 * t2 * t2;
    const double east =
        q * secant * Polynomial(q2, 1.0, east3 * (-1.0 / 6.0), east5 * (1.0 / 120.0));
    return {
        .latitude = (footpoint - north) * kDegreesPerRadian,
        .longitude = east * kDegreesPerRadian + kStripWidth * strip,
    };
}

std::string GridText(double metres, const base::NumberFormat& format)
{
    return format(metres, "0000000");
}

}  // namespace geo
