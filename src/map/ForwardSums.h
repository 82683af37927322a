// The inner loops of ForwardBlend, over packs of doubles.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "map/Lanes.h"
#include "map/Moments.h"
#include "map/PackedColumns.h"
#include "map/ParallelBases.h"
#include "map/Pixel.h"
#include "map/PlanePoint.h"

namespace map {

// Reference points, filled up to whole packs with points of no weight.
struct PointArrays {
    const double* longitude;
    const double* latitude;
    const double* x;
    const double* y;
    std::size_t size;    // of the points
    std::size_t filled;  // a multiple of kLanes
};

struct PointSums {
    Moments<double> moments;
    std::size_t count;                                        // of the following
    std::array<std::uint16_t, kExactPoints + kLanes> inLine;  // perhaps seen along a base
};

// Sums over all points, a pack of points at a time. `inLine` may name fillers.
PointSums SumPoints(const PointArrays& points, const ParallelBases& bases,
                    const Viewpoint<double>& p);

using LaneFlags = std::array<bool, kLanes>;

// The pixels of a pack of positions. False for one that has to be computed by itself: a point may
// be seen along a base, or the points lie nearly in a line.
LaneFlags FitPlaces(const PointArrays& points, const ParallelBases& bases,
                    std::span<const Column> columns, const Viewpoint<Lanes>& p,
                    std::span<Pixel, kLanes> pixels);

// Three times `once`, which holds one rotation of each triangle, without the rotations over the
// bases of columns.
WeightedPixel<double> WithoutColumns(const WeightedPixel<double>& once,
                                     std::span<const PackedColumns> columns,
                                     const Moments<double>& moments, const Viewpoint<double>& p);

}  // namespace map
