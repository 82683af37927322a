// What the open map window shows; it ends with the window.

#pragma once

#include <optional>

#include "plot/GridNodes.h"
#include "plot/PlotPosition.h"
#include "plot/Route.h"
#include "plot/ViewLayout.h"

namespace plot {

struct MapView {
    SurfaceSize surface;
    SurfacePoint clipOrigin;  // image pixel in the surface's upper left corner
    bool showMarked = true;   // stations whose line in the list is marked
    bool showUnmarked = true;
    std::optional<GridNodes> grid;  // none while it is switched off
    Route route;
};

}  // namespace plot
