// All rotations but those over columns, summed up without visiting any triangle, for several
// positions side by side: docs/map-model.md, "The sums".

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "map/ReferencePoint.h"
#include "map/blend/PlanePoint.h"

namespace map {

// Positions side by side.
template <std::size_t kSide>
using Row = std::array<double, kSide>;

template <std::size_t kSide>
struct Places {
    Row<kSide> x, y;  // longitude, latitude
};

// A reference point as seen from each position.
template <std::size_t kSide>
struct SeenPoint {
    Row<kSide> weight;
    std::array<std::int32_t, kSide> step;  // direction, as DirectionFilter takes it
};

// WeightedPixel for each position.
template <std::size_t kSide>
struct PixelRows {
    Row<kSide> weight = {}, x = {}, y = {};
};

template <std::size_t kSide>
struct ForwardSums {
    PixelRows<kSide> sum;
    std::array<bool, kSide> exact = {};  // false when the points nearly lie in a line or far away
};

// Both fill `seen`, which holds as many as there are points. Compiled for 1 and kManySides.
template <std::size_t kSide>
void See(std::span<const ReferencePoint> points, const Places<kSide>& places,
         std::span<SeenPoint<kSide>> seen);
template <std::size_t kSide>
ForwardSums<kSide> SumUp(std::span<const ReferencePoint> points, std::span<const Column> columns,
                         const Places<kSide>& places, std::span<SeenPoint<kSide>> seen);

// Loops of up to sixteen rounds g++ unrolls before it could make them wide.
inline constexpr std::size_t kManySides = 32;

}  // namespace map
