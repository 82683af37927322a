// Redfearn's transverse Mercator series (J. C. B. Redfearn, "Transverse Mercator formulae", Empire
// Survey Review 9, 1948), forward to the 8th and inverse to the 7th order in the distance from the
// central meridian, on the GRS80 ellipsoid. Metres and radians, where not said otherwise.
//
// `psi` is the ratio nu / rho of the radii of curvature across and along the meridian, `t` the
// tangent of the latitude. The powers are nested instead of summed one by one:
// `m` is the longitude difference times the cosine of the latitude, so that sin cos^(2k-1) w^(2k)
// becomes t m^(2k), and `x` the easting over nu.

#include "geo/Utm.h"

#include <array>
#include <cmath>

#include "base/Rounding.h"
#include "geo/Radians.h"
#include "geo/Series.h"

namespace geo {

namespace {

constexpr double kSemiMajorAxis = 6378137.0;
constexpr double kFlattening = 1.0 / 298.257222101;
constexpr double kScale = 0.9996;  // on the central meridian
constexpr double kFalseEasting = 500000.0;

// First eccentricity squared and its powers.
constexpr double kE2 = 2.0 * kFlattening - kFlattening * kFlattening;
constexpr double kE4 = kE2 * kE2;
constexpr double kE6 = kE4 * kE2;

// Meridian distance over the semi-major axis: the factor of the latitude and those of the sines of
// 2, 4 and 6 times it.
constexpr double kArcFactor = 1.0 - kE2 / 4.0 - 3.0 * kE4 / 64.0 - 5.0 * kE6 / 256.0;
constexpr std::array kArcTerms = {
    -3.0 / 8.0 * (kE2 + kE4 / 4.0 + 15.0 * kE6 / 128.0),
    15.0 / 256.0 * (kE4 + 3.0 * kE6 / 4.0),
    -35.0 * kE6 / 3072.0,
};

// Third flattening, (a - b) / (a + b), and its powers.
constexpr double kN = kFlattening / (2.0 - kFlattening);
constexpr double kN2 = kN * kN;
constexpr double kN3 = kN2 * kN;
constexpr double kN4 = kN2 * kN2;

// Footpoint latitude: radius of the circle as long as the meridian, and the terms in the sines of
// 2, 4, 6 and 8 times the rectifying latitude.
constexpr double kRectifyingRadius =
    kSemiMajorAxis * (1.0 - kN) * (1.0 - kN2) * (1.0 + 9.0 * kN2 / 4.0 + 225.0 * kN4 / 64.0);
constexpr std::array kFootpointTerms = {
    3.0 * kN / 2.0 - 27.0 * kN3 / 32.0,
    21.0 * kN2 / 16.0 - 55.0 * kN4 / 32.0,
    151.0 * kN3 / 96.0,
    1097.0 * kN4 / 512.0,
};

// What the series need to know about a latitude.
struct LatitudeTerms {
    double sine;
    double cosine;
    double secant;
    double nuShare;  // semi-major axis over nu
    double psi;      // nu / rho
    double t;
};

LatitudeTerms TermsOf(double latitude)
{
    const double sine = std::sin(latitude);
    const double cosine = std::cos(latitude);
    const double curvature = 1.0 - kE2 * sine * sine;
    return {
        .sine = sine,
        .cosine = cosine,
        .secant = 1.0 / cosine,
        .nuShare = std::sqrt(curvature),
        .psi = curvature * (1.0 / (1.0 - kE2)),
        .t = sine / cosine,
    };
}

// Degrees.
double CentralMeridian(double zone)
{
    return 6.0 * zone - 183.0;
}

double FootpointLatitude(double northing)
{
    const double sigma = northing * (1.0 / (kScale * kRectifyingRadius));
    const double sine = std::sin(sigma);
    const double cosine = std::cos(sigma);
    return sigma + SineSeries(kFootpointTerms, 2.0 * sine * cosine, 1.0 - 2.0 * sine * sine);
}

}  // namespace

UtmPosition GeoUTM(GeoPosition position)
{
    const auto zone = base::SaturateFloor<std::int16_t>((position.longitude + 186.0) / 6.0);
    const double w = (position.longitude - CentralMeridian(zone)) * kRadiansPerDegree;
    const double latitude = position.latitude * kRadiansPerDegree;
    const LatitudeTerms at = TermsOf(latitude);
    const double arc =
        kArcFactor * latitude
        + SineSeries(kArcTerms, 2.0 * at.sine * at.cosine, 1.0 - 2.0 * at.sine * at.sine);
    const double psi = at.psi;
    const double psi2 = psi * psi;
    const double t2 = at.t * at.t;
    const double t4 = t2 * t2;
    const double m = w * at.cosine;
    const double m2 = m * m;

    const double north4 = 4.0 * psi2 + psi - t2;
    const double north6 =
        psi2 * (8.0 * psi2 * (11.0 - 24.0 * t2) - 28.0 * psi * (1.0 - 6.0 * t2) + 1.0 - 32.0 * t2)
        - 2.0 * psi * t2 + t4;
    const double north8 = Polynomial(t2, 1385.0, -3111.0, 543.0, -1.0);
    const double north = at.t * m2
                         * Polynomial(m2, 1.0 / 2.0, north4 * (1.0 / 24.0), north6 * (1.0 / 720.0),
                                      north8 * (1.0 / 40320.0));

    const double east3 = psi - t2;
    const double east5 =
        psi2 * (4.0 * psi * (1.0 - 6.0 * t2) + 1.0 + 8.0 * t2) - 2.0 * psi * t2 + t4;
    const double east7 = Polynomial(t2, 61.0, -479.0, 179.0, -1.0);
    const double east =
        m * Polynomial(m2, 1.0, east3 * (1.0 / 6.0), east5 * (1.0 / 120.0), east7 * (1.0 / 5040.0));

    const double scaledNu = kScale * kSemiMajorAxis / at.nuShare;
    return {
        .zone = zone,
        .easting = scaledNu * east + kFalseEasting,
        .northing = kScale * kSemiMajorAxis * arc + scaledNu * north,
    };
}

GeoPosition UtmToGeo(double zone, double easting, double northing)
{
    const double footpoint = FootpointLatitude(northing);
    const LatitudeTerms at = TermsOf(footpoint);
    const double psi = at.psi;
    const double psi2 = psi * psi;
    const double t2 = at.t * at.t;
    const double t4 = t2 * t2;
    const double x = (easting - kFalseEasting) * (1.0 / (kScale * kSemiMajorAxis)) * at.nuShare;
    const double x2 = x * x;

    const double north4 = -4.0 * psi2 + 9.0 * psi * (1.0 - t2) + 12.0 * t2;
    const double north6 = psi2
                              * (8.0 * psi2 * (11.0 - 24.0 * t2) - 12.0 * psi * (21.0 - 71.0 * t2)
                                 + 15.0 * Polynomial(t2, 15.0, -98.0, 15.0))
                          + 180.0 * psi * (5.0 * t2 - 3.0 * t4) + 360.0 * t4;
    const double north8 = Polynomial(t2, 1385.0, 3633.0, 4095.0, 1575.0);
    const double north = at.t * psi * x2
                         * Polynomial(x2, 1.0 / 2.0, north4 * (-1.0 / 24.0), north6 * (1.0 / 720.0),
                                      north8 * (-1.0 / 40320.0));

    const double east3 = psi + 2.0 * t2;
    const double east5 =
        psi2 * (-4.0 * psi * (1.0 - 6.0 * t2) + 9.0 - 68.0 * t2) + 72.0 * psi * t2 + 24.0 * t4;
    const double east7 = Polynomial(t2, 61.0, 662.0, 1320.0, 720.0);
    const double east =
        x * at.secant
        * Polynomial(x2, 1.0, east3 * (-1.0 / 6.0), east5 * (1.0 / 120.0), east7 * (-1.0 / 5040.0));

    return {
        .latitude = (footpoint - north) * kDegreesPerRadian,
        .longitude = CentralMeridian(zone) + east * kDegreesPerRadian,
    };
}

}  // namespace geo
