// What the map window shows; it survives the window.
//
// The zoom level, the label choice and the display switches are kept in the configuration; the
// picture itself, which is no plain data, is owned by main() beside the shared state.

#pragma once

#include <cstdint>
#include <string>

#include "map/CalibrationFile.h"
#include "map/ReferenceTable.h"

namespace app {

// What a click on the map does. 4 is not used.
enum class ClickMode : std::int16_t {
    Nop = 0,
    SetStation1 = 1,
    SetStation2 = 2,
    AddLandmark = 3,
    Station2AsReference = 5,
    DeleteReference = 6,
    RouteStart = 7,
    RouteContinue = 8,
};

struct MapState {
    bool mapImage = false;  // clear: polar view
    ClickMode clickMode = ClickMode::Nop;
    // Of the image; until one is loaded, the region around the built-in home position.
    map::EdgeCoordinates edges = {
        .left = 11.163, .right = 11.737, .upper = 48.512, .lower = 48.188};
    map::InfBounds bounds;
    std::string imageName;  // as chosen, in the file system's own bytes
    map::ReferenceTable references;
};

}  // namespace app
