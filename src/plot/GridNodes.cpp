#include "plot/GridNodes.h"

#include <algorithm>
#include <cmath>

#include "geo/GeoPosition.h"

namespace plot {

namespace {

bool Meets(const Line& piece, map::Pixel origin, map::ImageSize clip)
{
    return std::isfinite(piece.from.x + piece.from.y + piece.to.x + piece.to.y)
           && std::min(piece.from.x, piece.to.x) <= origin.x + clip.width
           && std::max(piece.from.x, piece.to.x) >= origin.x
           && std::min(piece.from.y, piece.to.y) <= origin.y + clip.height
           && std::max(piece.from.y, piece.to.y) >= origin.y;
}

}  // namespace

std::optional<GridNodes> MakeGrid(const map::ReferenceTable& table, map::ImageSize image,
                                  map::Refinement refinement)
{
    const std::optional<map::MapGrid> lines = map::GridOf(table, image, refinement);
    if (!lines) {
        return std::nullopt;
    }
    GridNodes grid{.parallels = lines->parallels, .meridians = lines->meridians, .pixels = {}};
    std::vector<geo::GeoPosition> crossings;
    for (int parallel = 0; parallel < grid.parallels; ++parallel) {
        for (int meridian = 0; meridian < grid.meridians; ++meridian) {
            crossings.push_back(lines->Node(parallel, meridian));
        }
    }
    grid.pixels.resize(crossings.size());
    map::GeoToPixel(table, crossings, grid.pixels);
    return grid;
}

std::vector<Line> VisiblePieces(const GridNodes& grid, map::Pixel clipOrigin, map::ImageSize clip)
{
    std::vector<Line> pieces;
    const auto add = [&](const map::Pixel& from, const map::Pixel& to) {
        const Line piece{.from = from, .to = to};
        if (Meets(piece, clipOrigin, clip)) {
            pieces.push_back(piece);
        }
    };
    for (int parallel = 0; parallel < grid.parallels; ++parallel) {
        for (int meridian = 0; meridian < grid.meridians; ++meridian) {
            const map::Pixel& node = grid.At(parallel, meridian);
            if (meridian > 0) {
                add(grid.At(parallel, meridian - 1), node);
            }
            if (parallel > 0) {
                add(grid.At(parallel - 1, meridian), node);
            }
        }
    }
    return pieces;
}

}  // namespace plot
