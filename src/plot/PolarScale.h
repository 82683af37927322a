// Range rings and radial lines of the polar view as numbers.

#pragma once

#include <string>
#include <vector>

#include "base/NumberText.h"
#include "plot/LineClip.h"
#include "plot/PlotPosition.h"
#include "plot/ViewLayout.h"
#include "plot/ZoomLevels.h"

namespace plot {

// A ring around the centre. Its label stands just under its topmost point.
struct RangeRing {
    int radius = 0;  // surface units
    std::string label;
};

struct PolarScale {
    SurfacePoint centre;
    std::vector<Line>
        radials;  // between whole units, every 10 degrees, from the lower to the upper edge
    std::vector<RangeRing> rings;  // from the innermost
};

// The lines next to the horizontal leave the surface at its sides. With rings 0.9 km or more apart
// all labels are kilometres ("2 km"), otherwise all are metres ("500 m").
PolarScale MakePolarScale(SurfaceSize surface, int zoomLevel, const base::NumberFormat& format);

}  // namespace plot
