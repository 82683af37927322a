// The blend of a handful of triangles, each evaluated on its own: exact where a fit over all points
// is not, and as fast up to four.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "map/Pixel.h"
#include "map/PlanePoint.h"
#include "map/ReferencePoint.h"

namespace map {

class FewTriangles {
public:
    static constexpr std::size_t kMost = 4;

    void Clear() { size_ = 0; }
    bool Empty() const { return size_ == 0; }

    // Adds the triangle of three points that are not collinear; at most kMost times.
    void Add(const ReferencePoint& a, const ReferencePoint& b, const ReferencePoint& c);

    // Pixel of a position in degrees; 0/0 when every rotation is left out.
    Pixel At(PlanePoint p) const;

private:
    struct Prepared {
        std::array<PlanePoint, 3> corner;
        std::array<PlanePoint, 3> base;  // the side opposite to the corner
        int rotations;                   // that no vertical base rules out
        double areaSquared;
        double x, y;    // pixel of corner 0
        double xx, xy;  // change of the pixel's x per degree of longitude, of latitude
        double yx, yy;
    };

    static int LeftOut(const Prepared& triangle, PlanePoint p);

    std::array<Prepared, kMost> triangles_;
    std::size_t size_ = 0;
};

}  // namespace map
