// What the open map window shows; it ends with the window.

#pragma once

#include <optional>

#include "ui/map/MapGrid.h"
#include "ui/map/PlotPosition.h"
#include "ui/map/Route.h"
#include "ui/map/ViewLayout.h"

namespace ui {

struct MapView {
    Extent surface;
    SurfacePoint clipOrigin;  // image pixel in the surface's upper left corner
    bool showMarked = true;   // stations whose line in the list is marked
    bool showUnmarked = true;
    std::optional<GridNodes> grid;  // none while it is switched off
    Route route;
};

}  // namespace ui
