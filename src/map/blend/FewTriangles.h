// The blend of three or four points, triangle by triangle: where so few are, sums over all of them
// are neither exact nor fast enough (docs/map-model.md, "Three and four points").

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "map/Pixel.h"
#include "map/ReferencePoint.h"
#include "map/blend/PlanePoint.h"

namespace map {

class FewTriangles {
public:
    static constexpr std::size_t kMostPoints = 4;

    // Takes all triangles that are not exactly collinear.
    void Prepare(std::span<const ReferencePoint> points);

    // Pixel of a position in degrees; 0/0 when every rotation is left out.
    Pixel At(PlanePoint p) const;

private:
    // A corner and the side opposite to it.
    struct Corner {
        std::size_t point;
        PlanePoint base;
    };

    struct Affine {
        std::array<Corner, 3> corners;
        std::size_t other;   // the point that is no corner; kMostPoints - 1 of three points
        double rotations;    // that no vertical base rules out
        double areaSquared;  // doubled
        double x, y;         // pixel of the first corner
        double xx, xy;       // change of its x per degree of longitude, of latitude
        double yx, yy;
    };

    void Add(std::span<const ReferencePoint> points, std::size_t i, std::size_t j, std::size_t k);
    double LeftOut(const Affine& triangle, PlanePoint p) const;

    std::vector<PlanePoint> places_;
    std::vector<Affine> triangles_;
};

}  // namespace map
