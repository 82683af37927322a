// The blend of a handful of triangles, each evaluated on its own: exact where a fit over all points
// is not, and as fast up to four.

#pragma once

#include <array>
#include <cstddef>

#include "map/Pixel.h"
#include "map/ReferencePoint.h"
#include "map/blend/PlanePoint.h"

namespace map {

class FewTriangles {
public:
    static constexpr std::size_t kMost = 4;

    void Clear();
    bool Empty() const { return size_ == 0; }

    // Adds the triangle of three points that are not collinear; at most kMost times.
    void Add(const ReferencePoint& a, const ReferencePoint& b, const ReferencePoint& c);

    // Pixel of a position in degrees; 0/0 when there is no triangle or every rotation is left out.
    Pixel At(PlanePoint p) const;

private:
    // A number of each triangle, 0 for those that there are not.
    using Row = std::array<double, kMost>;

    // A corner and the side opposite to it.
    struct Corner {
        Row x, y;
        Row baseX, baseY;
    };

    double LeftOut(std::size_t triangle, PlanePoint p) const;

    std::size_t size_ = 0;
    std::array<Corner, 3> corners_ = {};
    Row rotations_ = {};  // that no vertical base rules out
    Row areaSquared_ = {};
    Row x_ = {}, y_ = {};    // pixel of the first corner
    Row xx_ = {}, xy_ = {};  // change of its x per degree of longitude, of latitude
    Row yx_ = {}, yy_ = {};
};

}  // namespace map
