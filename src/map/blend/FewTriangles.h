// The blend of three or four points, triangle by triangle: where so few are, sums over all of them
// are neither exact nor fast enough (docs/map-model.md, "Three and four points").

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
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

    // Pixels of positions in degrees; 0/0 when every rotation is left out. For one and kManySides.
    template <std::size_t kSide>
    void At(const std::array<PlanePoint, kSide>& places, std::span<Pixel, kSide> pixels) const;

private:
    // A corner and the side opposite to it.
    struct Corner {
        PlanePoint place;
        PlanePoint base;
    };

    struct Affine {
        std::array<Corner, 3> corners = {};
        double rotations;  // that no vertical base rules out
        double areaSquared;
        double x, y;    // pixel of the first corner
        double xx, xy;  // change of its x per degree of longitude, of latitude
        double yx, yy;
    };

    static double LeftOut(const Affine& triangle, PlanePoint p);

    // Takes the rotations that are left out off the weights of the places that may have any.
    template <std::size_t kSide>
    static void TakeOffParallel(std::array<double, kSide>& weight, const Affine& triangle,
                                const std::array<PlanePoint, kSide>& places,
                                const std::array<std::int64_t, kSide>& parallel);

    void Add(const ReferencePoint& a, const ReferencePoint& b, const ReferencePoint& c);

    std::vector<Affine> triangles_;
};

}  // namespace map
