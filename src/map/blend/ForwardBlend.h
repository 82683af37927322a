// The map model from the earth to the image, prepared once per reference table.
//
// The weighted blend of the affine maps of all triangles, at a cost that grows with the number of
// points instead of its cube: docs/map-model.md.

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"
#include "map/blend/Elimination.h"
#include "map/blend/FewTriangles.h"
#include "map/blend/ForwardSums.h"
#include "map/blend/ParallelBases.h"
#include "map/blend/PlanePoint.h"
#include "map/blend/Weights.h"

namespace map {

class ForwardBlend {
public:
    void Prepare(std::span<const ReferencePoint> points);

    // Pixel of a position, before it is brought into the 16-bit range. 0/0 without a usable
    // triangle, NaN for a position that is not finite. A position beyond kFarthestPoint degrees
    // counts as if it were there.
    Pixel At(geo::GeoPosition position) const;

    // The same for many positions, as many as there are pixels; results may differ from those of
    // single calls in the last places.
    void At(std::span<const geo::GeoPosition> positions, std::span<Pixel> pixels) const;

    // False when there is no usable triangle.
    bool Usable() const { return usable_; }

private:
    template <std::size_t kSide>
    using Scratch = std::vector<SeenPoint<kSide>>;

    // By sums over more points than FewTriangles takes.
    template <std::size_t kSide>
    std::array<Pixel, kSide> Find(const Places<kSide>& places, Scratch<kSide>& seen) const;
    // All rotations over bases that are not vertical; by elimination where the sums are not exact.
    template <std::size_t kSide>
    PixelRows<kSide> SumUpCarefully(const Places<kSide>& places, Scratch<kSide>& seen) const;

    // The rotations around apex `c` that are left out because their line is parallel to the base.
    WeightedPixel ParallelAround(std::size_t c, PlanePoint p) const;
    static void AddRotation(WeightedPixel& sum, PlanePoint p, const ReferencePoint& a,
                            const ReferencePoint& b, const ReferencePoint& c);

    // By longitude, with their places.
    std::vector<ReferencePoint> points_;
    std::vector<PlanePoint> places_;

    std::vector<Column> columns_;
    ParallelBases bases_;
    Elimination elimination_;
    FewTriangles few_;  // instead of these three, when there are not more
    bool usable_ = false;

    // Kept because making them anew would cost as much as the sums.
    mutable Scratch<1> seenByOne_;
    mutable Scratch<kManySides> seenByMany_;
};

}  // namespace map
