// A place on the map image.

#pragma once

namespace map {

// Pixels from the left and from the upper edge of the image; fractions count.
struct Pixel {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Pixel&) const = default;
};

}  // namespace map
