// The sums once more, for places from which the points nearly lie in a line: docs/map-model.md,
// "Thin sets of points".

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "map/ReferencePoint.h"
#include "map/blend/ForwardSums.h"
#include "map/blend/PlanePoint.h"

namespace map {

class Elimination {
public:
    void Prepare(std::span<const ReferencePoint> points);

    // Whether the points are so thin a strip that no other sums will do.
    bool IsThin() const { return thin_; }

    // All rotations over bases that are not vertical, seen from `positions`; of the points
    // prepared. Compiled for 1 and kManySides.
    template <std::size_t kSide>
    PixelRows<kSide> At(std::span<const ReferencePoint> points, std::span<const Column> columns,
                        const Places<kSide>& positions,
                        std::span<const SeenPoint<kSide>> seen) const;

private:
    // From the middle of the points: in degrees, and turned into their longest extent.
    struct Place {
        double x, y;
        double along, across;
    };

    template <std::size_t kSide>
    struct View;

    Place PlaceOf(PlanePoint p) const;
    template <std::size_t kSide>
    View<kSide> ViewFrom(const Places<kSide>& positions,
                         std::span<const SeenPoint<kSide>> seen) const;
    template <std::size_t kSide>
    void TakeOff(std::span<const ReferencePoint> points, const Column& column,
                 std::span<const SeenPoint<kSide>> seen, View<kSide>& v,
                 PixelRows<kSide>& sums) const;

    PlanePoint middle_;
    Extended cosine_ = 1;
    Extended sine_ = 0;
    std::vector<Place> places_;
    bool thin_ = false;
};

}  // namespace map
