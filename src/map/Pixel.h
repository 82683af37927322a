// A place on the map image.

#pragma once

#include <cmath>

namespace map {

// Pixels from the left and from the upper edge of the image; fractions count.
struct Pixel {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Pixel&) const = default;
};

inline double Distance(Pixel a, Pixel b)
{
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y));
}

}  // namespace map
