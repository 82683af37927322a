// Which triangles of a point set are usable.

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "map/PlanePoint.h"

namespace map {

// A triple of points by index, i < j < k.
struct Triangle {
    std::uint16_t i = 0;
    std::uint16_t j = 0;
    std::uint16_t k = 0;
};

// Whether the three count as collinear. `cross` is Cross(a, b, c): it spares most triples the
// roots of the full test.
bool Collinear(PlanePoint a, PlanePoint b, PlanePoint c, double cross);

// Calls visit(triangle, cross, collinear) for every triple of points.
template <typename Visit>
void ForEachTriangle(std::span<const PlanePoint> points, Visit visit)
{
    const auto n = static_cast<std::uint16_t>(points.size());
    for (std::uint16_t i = 0; i < n; ++i) {
        for (std::uint16_t j = i + 1; j < n; ++j) {
            for (std::uint16_t k = j + 1; k < n; ++k) {
                const double cross = Cross(points[i], points[j], points[k]);
                const bool collinear = Collinear(points[i], points[j], points[k], cross);
                visit(Triangle{.i = i, .j = j, .k = k}, cross, collinear);
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
