// The geographic grid over the map image: its crossings as image pixels.

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "map/Georeference.h"
#include "map/MapGrid.h"
#include "map/Pixel.h"
#include "map/ReferenceTable.h"
#include "plot/LineClip.h"

namespace plot {

// Made once when the grid is switched on; drawn minus the clip origin.
struct GridNodes {
    int parallels = 0;
    int meridians = 0;
    std::vector<map::Pixel> pixels;  // parallel after parallel

    const map::Pixel& At(int parallel, int meridian) const
    {
        return pixels[static_cast<std::size_t>(parallel) * static_cast<std::size_t>(meridians)
                      + static_cast<std::size_t>(meridian)];
    }
};

// None when a corner of the image has no finite position or there would be too many lines.
std::optional<GridNodes> MakeGrid(const map::ReferenceTable& table, map::ImageSize image,
                                  map::Refinement refinement);

// The pieces of parallels and meridians between neighbouring crossings, in image pixels, of which
// anything may be seen in the clip: those whose box meets it.
std::vector<Line> VisiblePieces(const GridNodes& grid, map::Pixel clipOrigin, map::ImageSize clip);

}  // namespace plot
