// The lines of the result block.

#pragma once

#include <string>

#include "base/NumberText.h"
#include "geo/GeoPosition.h"

namespace geo {

enum class DirectionMode {
    Degrees,       // azimuth clockwise from north: "90.00 Grad"
    CompassPoint,  // compass point and the angle off it: "OST   + 0.00 Grad"
};

// Direction of the target as seen from the start point. Empty when there is no finite result.
std::string DirectionText(GeoPosition start, GeoPosition target, DirectionMode mode,
                          const base::NumberFormat& format);

// "Entfernung = 400.000 m": millimetres below 1e-5 km, metres below 0.5 km, else kilometres. Empty
// when `kilometres` is not finite.
std::string DistanceLine(double kilometres, const base::NumberFormat& format);

}  // namespace geo
