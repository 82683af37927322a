#include "map/blend/HasTriangle.h"

#include <algorithm>
#include <cstddef>

namespace map {

namespace {

double DistanceSquared(PlanePoint a, PlanePoint b)
{
    return (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
}

PlanePoint Farthest(std::span<const PlanePoint> points, PlanePoint from)
{
    return *std::max_element(points.begin(), points.end(), [from](PlanePoint a, PlanePoint b) {
        return DistanceSquared(from, a) < DistanceSquared(from, b);
    });
}

// With any apex out of `apexes`.
bool HasTriangleOver(PlanePoint a, PlanePoint b, std::span<const PlanePoint> apexes)
{
    return std::any_of(apexes.begin(), apexes.end(),
                       [a, b](PlanePoint c) { return !IsThin(a, b, c); });
}

}  // namespace

bool IsThin(PlanePoint a, PlanePoint b, PlanePoint c)
{
    const double longest2 =
        std::max({DistanceSquared(a, b), DistanceSquared(b, c), DistanceSquared(c, a)});
    const double cross = Cross(a, b, c);
    return cross == 0.0 || cross * cross / 4.0 < kCollinear * longest2 * longest2;
}

bool HasTriangle(std::span<const PlanePoint> points)
{
    if (points.size() > kExactPoints) {
        const PlanePoint a = Farthest(points, points.front());
        return HasTriangleOver(a, Farthest(points, a), points);
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (std::size_t j = i + 1; j < points.size(); ++j) {
            if (HasTriangleOver(points[i], points[j], points.subspan(j + 1))) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace map
