// Which triangles of a point set are usable.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "map/blend/PlanePoint.h"

namespace map {

// A triple of points by index, i < j < k.
struct Triangle {
    std::uint16_t i = 0;
    std::uint16_t j = 0;
    std::uint16_t k = 0;
};

// The shape of a triple.
struct Shape {
    double cross = 0.0;     // twice the signed area
    double longest2 = 0.0;  // square of the longest side
    bool collinear = false;
};

inline double DistanceSquared(PlanePoint a, PlanePoint b)
{
    return (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
}

inline Shape ShapeOf(PlanePoint a, PlanePoint b, PlanePoint c)
{
    const double cross = Cross(a, b, c);
    const double longest2 =
        std::max({DistanceSquared(a, b), DistanceSquared(b, c), DistanceSquared(c, a)});
    // Most triples are so far from collinear that they need no roots to tell.
    const bool surely = cross * cross >= 64.0 * kCollinear * longest2 * longest2;
    return {.cross = cross,
            .longest2 = longest2,
            .collinear = (!surely || cross == 0.0)
                         && UsableAreaSquared(a.x, a.y, b.x, b.y, c.x, c.y) == 0.0};
}

// Calls visit(triangle, shape) for every triple of points.
template <typename Visit>
void ForEachTriangle(std::span<const PlanePoint> points, Visit visit)
{
    const auto n = static_cast<std::uint16_t>(points.size());
    for (std::uint16_t i = 0; i < n; ++i) {
        for (std::uint16_t j = i + 1; j < n; ++j) {
            for (std::uint16_t k = j + 1; k < n; ++k) {
                visit(Triangle{.i = i, .j = j, .k = k}, ShapeOf(points[i], points[j], points[k]));
            }
        }
    }
}

struct TriangleSurvey {
    std::size_t usable = 0;           // triangles; beyond kExactPoints only whether there are any
    std::vector<bool> used;           // by point: part of a usable triangle
    std::vector<Triangle> collinear;  // of used points, with an area that can be seen
};

// Beyond kExactPoints all points count as used, or none when they all lie in a line.
TriangleSurvey SurveyTriangles(std::span<const PlanePoint> points);

}  // namespace map
