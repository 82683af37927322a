// The sums of ForwardBlend over all reference points: for one position, a pack of points at a time,
// and for a pack of positions, point by point.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/blend/Lanes.h"
#include "map/blend/Moments.h"
#include "map/blend/PackedColumns.h"
#include "map/blend/ParallelBases.h"
#include "map/blend/PlanePoint.h"

namespace map {

// A prepared table, laid out for one position and for a pack of them. Points by longitude.
struct PreparedPoints {
    std::span<const PointPack> packs;  // four points to a pack
    std::span<const PackedColumns> packedColumns;
    std::span<const PointPack> spread;  // each point in a pack of its own
    std::span<const Column> columns;    // of `spread`
    const ParallelBases& bases;
    const Extent& extent;
};

// All rotations as seen from one position but those over columns, with the points that may be seen
// along a base still in.
struct PointSums {
    WeightedPixel<double> sum;
    bool exact;         // false when the points nearly lie in a line, and the sum is useless
    std::size_t count;  // of the following
    std::array<std::uint16_t, kExactPoints> inLine;  // points that may be seen along a base
};

PointSums SumPoints(const PreparedPoints& table, PlanePoint p);

// The pixels of a pack of positions, and whether each is final. One that is not has to be computed
// by itself: it is not finite, a point is seen along a base, or the points nearly lie in a line.
struct PackOfPixels {
    std::array<Pixel, kLanes> pixels;
    std::array<bool, kLanes> done;
};

PackOfPixels FitPlaces(const PreparedPoints& table,
                       std::span<const geo::GeoPosition, kLanes> positions);

}  // namespace map
