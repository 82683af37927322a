// Columns of reference points, laid out for evaluation side by side.

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "map/PlanePoint.h"
#include "map/ReferencePoint.h"

namespace map {

// A coordinate that fills a pack up: at this distance a point has the weight 0.
inline constexpr double kNowhere = 1e160;

// Up to four columns side by side, a point of each to a row; lanes without one have no weight.
struct PackedColumns {
    static constexpr std::size_t kSide = 4;

    struct Row {
        std::array<double, kSide> longitude;
        std::array<double, kSide> latitude;
        std::array<double, kSide> x;
        std::array<double, kSide> y;
    };

    std::vector<Row> rows;
};

std::vector<PackedColumns> PackColumns(std::span<const ReferencePoint> points,
                                       std::span<const Column> columns);

}  // namespace map
