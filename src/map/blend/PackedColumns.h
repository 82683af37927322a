// Reference points, and columns of them, laid out for evaluation side by side.

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "map/ReferencePoint.h"
#include "map/blend/PlanePoint.h"

namespace map {

// Points side by side. A lane without one stands so far away that its weight is 0.
struct PointPack {
    static constexpr std::size_t kSide = 4;

    std::array<double, kSide> longitude;
    std::array<double, kSide> latitude;
    std::array<double, kSide> x;
    std::array<double, kSide> y;
};

// Four points to a pack, in their order.
std::vector<PointPack> PackPoints(std::span<const ReferencePoint> points);

// Each point in a pack of its own, in every lane.
std::vector<PointPack> SpreadPoints(std::span<const ReferencePoint> points);

// Up to four columns side by side, a point of each to a row. All of a lane has one longitude.
struct PackedColumns {
    std::vector<PointPack> rows;
};

std::vector<PackedColumns> PackColumns(std::span<const ReferencePoint> points,
                                       std::span<const Column> columns);

}  // namespace map
