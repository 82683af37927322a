#include "map/blend/TriangleBlend.h"

#include <cmath>
#include <cstddef>

#include "map/blend/HasTriangle.h"

namespace map {

namespace {

// a / b; a divisor of exactly 0 counts as 1e-40.
double SafeDivide(double a, double b)
{
    return a / (b == 0.0 ? 1e-40 : b);
}

// 1 / (dx² + dy²), the weight of a point at that distance: 1e40 for a coincident one.
double InverseSquare(double dx, double dy)
{
    return SafeDivide(1.0, dx * dx + dy * dy);
}

// A reference point with the side that is given (x, y) and the side that is wanted (u, v).
struct Vertex {
    double x;
    double y;
    double u;
    double v;
};

struct Blend {
    double u = 0.0;
    double v = 0.0;
    double weight = 0.0;
};

// Adds one rotation: base AB, apex C, seen from (px, py).
void AddRotation(Blend& sum, const Vertex& a, const Vertex& b, const Vertex& c, double px,
                 double py, double weight)
{
    const double dxBA = b.x - a.x;
    const double dyBA = b.y - a.y;
    const double dxPC = px - c.x;
    const double dyPC = py - c.y;
    const double det = dxPC * dyBA - dyPC * dxBA;
    if (det == 0.0 || dxBA == 0.0) {
        return;
    }
    const double qx = ((c.y - a.y) * dxBA * dxPC + a.x * dyBA * dxPC - c.x * dyPC * dxBA) / det;
    const double qy = (qx - a.x) * dyBA / dxBA + a.y;
    const double qu = (b.u - a.u) * (qx - a.x) / dxBA + a.u;
    const double qv = (b.v - a.v) * (qx - a.x) / dxBA + a.v;
    const bool alongX = std::fabs(qx - c.x) > std::fabs(qy - c.y);
    const double part = alongX ? px - c.x : py - c.y;
    const double whole = alongX ? qx - c.x : qy - c.y;
    const double u = c.u + SafeDivide(part * (qu - c.u), whole);
    const double v = c.v + SafeDivide(part * (qv - c.v), whole);
    sum.u += weight * u;
    sum.v += weight * v;
    sum.weight += weight;
}

// Whether every triangle is a line but for rounding.
template <typename ToVertex>
bool AllAreThin(std::span<const ReferencePoint> points, ToVertex toVertex)
{
    const auto place = [&](std::size_t i) {
        const Vertex vertex = toVertex(points[i]);
        return PlanePoint{.x = vertex.x, .y = vertex.y};
    };
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (std::size_t j = i + 1; j < points.size(); ++j) {
            for (std::size_t k = j + 1; k < points.size(); ++k) {
                if (!IsThin(place(i), place(j), place(k))) {
                    return false;
                }
            }
        }
    }
    return true;
}

// Calls `add` with A, B, C and the squared area for the three rotations of every triangle.
template <typename ToVertex, typename Add>
void ForEachRotation(std::span<const ReferencePoint> points, ToVertex toVertex, Add add)
{
    const std::size_t n = AllAreThin(points, toVertex) ? 0 : points.size();
    for (std::size_t i = 0; i < n; ++i) {
        const Vertex first = toVertex(points[i]);
        for (std::size_t j = i + 1; j < n; ++j) {
            const Vertex second = toVertex(points[j]);
            for (std::size_t k = j + 1; k < n; ++k) {
                const Vertex third = toVertex(points[k]);
                const double area2 =
                    Cross({first.x, first.y}, {second.x, second.y}, {third.x, third.y});
                const double areaSquared = area2 * area2 / 4.0;
                add(second, third, first, areaSquared);
                add(third, first, second, areaSquared);
                add(first, second, third, areaSquared);
            }
        }
    }
}

}  // namespace

Pixel TriangleBlendToPixel(std::span<const ReferencePoint> points, geo::GeoPosition position)
{
    const double px = position.longitude;
    const double py = position.latitude;
    Blend sum;
    ForEachRotation(
        points,
        [](const ReferencePoint& p) {
            return Vertex{p.Longitude, p.Latitude, p.X, p.Y};
        },
        [&](const Vertex& a, const Vertex& b, const Vertex& c, double areaSquared) {
            const double weight = InverseSquare(b.x - px, b.y - py)
                                  * InverseSquare(a.x - px, a.y - py)
                                  * InverseSquare(c.x - px, c.y - py) * areaSquared;
            AddRotation(sum, a, b, c, px, py, weight);
        });
    if (sum.weight == 0.0) {
        return {};
    }
    return {.x = sum.u / sum.weight, .y = sum.v / sum.weight};
}

geo::GeoPosition TriangleBlendToGeo(std::span<const ReferencePoint> points, Pixel pixel)
{
    Blend sum;
    ForEachRotation(
        points,
        [](const ReferencePoint& p) {
            return Vertex{p.X, p.Y, p.Longitude, p.Latitude};
        },
        [&](const Vertex& a, const Vertex& b, const Vertex& c, double areaSquared) {
            const double weight = InverseSquare(a.x - pixel.x, a.y - pixel.y) * areaSquared;
            AddRotation(sum, a, b, c, pixel.x, pixel.y, weight);
        });
    if (sum.weight == 0.0) {
        return {};
    }
    return {.latitude = sum.v / sum.weight, .longitude = sum.u / sum.weight};
}

}  // namespace map
