// The sums once more, for places from which the points nearly lie in a line: docs/map-model.md,
// "Thin sets of points".

#pragma once

#include <span>
#include <vector>

#include "map/ReferencePoint.h"
#include "map/blend/PlanePoint.h"
#include "map/blend/Weights.h"

namespace map {

class Elimination {
public:
    void Prepare(std::span<const ReferencePoint> points);

    // Whether the points are so thin a strip that no other sums will do.
    bool IsThin() const { return thin_; }

    // All rotations over bases that are not vertical, seen from `p`; of the points prepared.
    WeightedPixel At(std::span<const ReferencePoint> points, std::span<const Column> columns,
                     PlanePoint p) const;

private:
    using Extended = long double;

    // From the middle of the points: in degrees, and turned into their longest extent.
    struct Place {
        double x, y;
        double along, across;
    };

    // The points as they are seen from a position.
    struct View {
        Place p;
        std::vector<double> weights;
        double one = 0.0;                     // sum of the weights
        double along = 0.0, across = 0.0;     // weighted means
        double aa = 0.0, ab = 0.0, bb = 0.0;  // weighted squares about them
        double slope = 0.0;                   // of the line fitted along
        double rest = 0.0;                    // squares across about that line
    };

    Place PlaceOf(PlanePoint p) const;
    View ViewFrom(std::span<const ReferencePoint> points, PlanePoint p) const;
    WeightedPixel WithoutColumns(std::span<const ReferencePoint> points,
                                 std::span<const Column> columns, const View& view) const;
    static void Add(WeightedPixel& sum, double share, const ReferencePoint& point);

    PlanePoint middle_;
    Extended cosine_ = 1;
    Extended sine_ = 0;
    std::vector<Place> places_;
    bool thin_ = false;
};

}  // namespace map
