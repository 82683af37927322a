// Random pairs of points for the tests of distance and bearing.

#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "geo/Distance.h"
#include "geo/GeoPosition.h"
#include "geo/Radians.h"

namespace geo {

// Both latitudes within a limit in degrees, the distances, in km, spread evenly over the powers of
// ten. Always the same sequence.
class RandomPairs {
public:
    struct Pair {
        GeoPosition start;
        GeoPosition target;
    };

    explicit RandomPairs(double latitudeLimit, double nearest, double farthest)
        : latitude_(-latitudeLimit, latitudeLimit),
          logDistance_(std::log(nearest), std::log(farthest)), limit_(latitudeLimit)
    {
    }

    Pair Next()
    {
        for (;;) {
            const GeoPosition start = {.latitude = latitude_(random_),
                                       .longitude = 180.0 * direction_(random_)};
            const double angle = std::exp(logDistance_(random_)) / kEarthRadius;
            const GeoPosition target = Target(start, angle, std::numbers::pi * direction_(random_));
            if (std::fabs(target.latitude) <= limit_) {
                return {.start = start, .target = target};
            }
        }
    }

private:
    // `azimuth` clockwise from north, radians.
    static GeoPosition Target(GeoPosition start, double angle, double azimuth)
    {
        const double a = start.latitude * kRadiansPerDegree;
        const double sinB =
            std::sin(a) * std::cos(angle) + std::cos(a) * std::sin(angle) * std::cos(azimuth);
        const double c = std::atan2(std::sin(azimuth) * std::sin(angle) * std::cos(a),
                                    std::cos(angle) - std::sin(a) * sinB);
        return {.latitude = std::asin(std::clamp(sinB, -1.0, 1.0)) * kDegreesPerRadian,
                .longitude = start.longitude + c * kDegreesPerRadian};
    }

    std::mt19937_64 random_{42};
    std::uniform_real_distribution<double> latitude_;
    std::uniform_real_distribution<double> logDistance_;
    std::uniform_real_distribution<double> direction_{-1.0, 1.0};
    double limit_;
};

}  // namespace geo
