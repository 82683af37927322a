// Lines that run far beyond the surface, cut to what the drawing calls can take.

#pragma once

#include <optional>

#include "map/Pixel.h"
#include "plot/ViewLayout.h"

namespace plot {

struct Line {
    map::Pixel from;
    map::Pixel to;

    bool operator==(const Line&) const = default;
};

// The part of a line within a few units of the surface; none when nothing of it is there or an end
// is not finite. A line that lies within is returned as it is.
std::optional<Line> ClipLine(const Line& line, SurfaceSize surface);

}  // namespace plot
