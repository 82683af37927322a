// Points of either plane, image or earth.

#pragma once

#include <cmath>
#include <cstddef>

namespace map {

struct PlanePoint {
    double x = 0.0;
    double y = 0.0;
};

// For small differences of products: a mantissa of 64 bits on x86. Where this is no longer than a
// double, nothing breaks; thin triangles lose the digits that it adds.
using Extended = long double;

// Tables up to this size are treated triangle by triangle where that matters: rotations that are
// left out are found one by one. Beyond it the work of a change would grow past what a user waits
// for, while one triangle weighs less than a millionth of the whole.
inline constexpr std::size_t kExactPoints = 200;

// A point beyond this is no place on an image or the earth; it takes no part in a conversion.
inline constexpr double kFarthestPoint = 1e9;

inline bool InRange(PlanePoint p)
{
    return std::fabs(p.x) <= kFarthestPoint && std::fabs(p.y) <= kFarthestPoint;
}

// A run of points of equal x, in an order by x.
struct Column {
    std::size_t begin = 0;
    std::size_t end = 0;
};

// Twice the signed area of the triangle.
inline double Cross(PlanePoint a, PlanePoint b, PlanePoint c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

}  // namespace map
