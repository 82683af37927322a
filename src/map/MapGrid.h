// The geographic grid over the map image: which parallels and meridians are drawn.

#pragma once

#include <cstdint>
#include <limits>
#include <optional>

#include "geo/GeoPosition.h"
#include "map/Georeference.h"
#include "map/ReferenceTable.h"

namespace map {

// Smallest box of latitudes and longitudes around some positions; inside out before the first.
struct CornerBounds {
    double south = std::numeric_limits<double>::infinity();
    double north = -std::numeric_limits<double>::infinity();
    double west = std::numeric_limits<double>::infinity();
    double east = -std::numeric_limits<double>::infinity();

    // A coordinate that is not a number changes nothing.
    void Widen(geo::GeoPosition position);

    bool operator==(const CornerBounds&) const = default;
};

// Parallels and meridians at whole multiples of `spacing`.
struct MapGrid {
    std::int32_t spacing = 0;        // minutes of arc
    std::int32_t firstParallel = 0;  // at or below the southern edge, in spacings from the equator
    std::int32_t firstMeridian = 0;  // at or below the western edge, in spacings from Greenwich
    std::int16_t parallels = 0;      // their number
    std::int16_t meridians = 0;

    // The crossing of two lines, each counted from 0 at the first.
    geo::GeoPosition Node(int parallel, int meridian) const;

    bool operator==(const MapGrid&) const = default;
};

// More lines one way than this are no grid.
inline constexpr int kMostGridLines = 1000;

// Distance of the lines in minutes of arc for a map whose spans of latitude and longitude add up to
// `spans` degrees: 600, 60, 30, 10, 5, 2 or 1.
std::int32_t GridSpacing(double spans);

// The grid of a box. None when it is not finite or there would be more than kMostGridLines.
std::optional<MapGrid> GridOf(const CornerBounds& bounds);

// The grid of the four corners of the image. None also when a corner has no finite position, or no
// position a pixel.
std::optional<MapGrid> GridOf(const ReferenceTable& table, ImageSize size, Refinement refinement);

}  // namespace map
