#include "map/blend/ExactBlend.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace map {

namespace {

__extension__ using Quad = __float128;

struct Vertex {
    Quad x;
    Quad y;
    Quad u;
    Quad v;
};

struct Blend {
    Quad u = 0;
    Quad v = 0;
    Quad weight = 0;
};

Quad Square(const Vertex& a, const Vertex& b)
{
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

Quad InverseOfSquare(const Vertex& a, const Vertex& p)
{
    const Quad square = Square(a, p);
    return 1 / (square == 0 ? Quad{1e-40} : square);
}

Quad Cross(const Vertex& a, const Vertex& b, const Vertex& c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// Whether the rotation with the base AB counts.
bool Counts(const Vertex& a, const Vertex& b, const Vertex& c, const Vertex& p)
{
    return b.x != a.x && (p.x - c.x) * (b.y - a.y) != (p.y - c.y) * (b.x - a.x);
}

using Corners = std::array<Vertex, 3>;

bool IsThin(const Corners& t)
{
    const Quad cross = Cross(t[0], t[1], t[2]);
    const Quad longest = std::max({Square(t[0], t[1]), Square(t[1], t[2]), Square(t[2], t[0])});
    return cross == 0 || cross * cross / 4 < Quad{1e-12} * longest * longest;
}

// Adds the rotations of one triangle.
template <typename WeightOf>
void AddTriangle(Blend& sum, const Corners& t, const Vertex& p, WeightOf weightOf)
{
    const Quad cross = Cross(t[0], t[1], t[2]);
    if (cross == 0) {
        return;
    }
    const Quad areas[] = {Cross(p, t[1], t[2]), Cross(t[0], p, t[2]), Cross(t[0], t[1], p)};
    const Quad u = (areas[0] * t[0].u + areas[1] * t[1].u + areas[2] * t[2].u) / cross;
    const Quad v = (areas[0] * t[0].v + areas[1] * t[1].v + areas[2] * t[2].v) / cross;
    for (std::size_t r = 0; r < 3; ++r) {
        const Vertex& a = t[(r + 1) % 3];
        const Vertex& b = t[(r + 2) % 3];
        const Vertex& c = t[r];
        if (Counts(a, b, c, p)) {
            const Quad weight = weightOf(a, b, c) * cross * cross;
            sum.u += weight * u;
            sum.v += weight * v;
            sum.weight += weight;
        }
    }
}

bool AllAreThin(const std::vector<Vertex>& vertices)
{
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        for (std::size_t j = i + 1; j < vertices.size(); ++j) {
            for (std::size_t k = j + 1; k < vertices.size(); ++k) {
                if (!IsThin({vertices[i], vertices[j], vertices[k]})) {
                    return false;
                }
            }
        }
    }
    return true;
}

template <typename WeightOf>
Blend Blended(const std::vector<Vertex>& vertices, const Vertex& p, WeightOf weightOf)
{
    Blend sum;
    if (AllAreThin(vertices)) {
        return sum;
    }
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        for (std::size_t j = i + 1; j < vertices.size(); ++j) {
            for (std::size_t k = j + 1; k < vertices.size(); ++k) {
                AddTriangle(sum, {vertices[i], vertices[j], vertices[k]}, p, weightOf);
            }
        }
    }
    if (sum.weight != 0) {
        sum.u /= sum.weight;
        sum.v /= sum.weight;
    }
    return sum;
}

}  // namespace

Pixel ExactToPixel(std::span<const ReferencePoint> points, geo::GeoPosition position)
{
    std::vector<Vertex> vertices;
    for (const ReferencePoint& point : points) {
        vertices.push_back({point.Longitude, point.Latitude, point.X, point.Y});
    }
    const Vertex p = {position.longitude, position.latitude, 0, 0};
    const Blend sum = Blended(vertices, p, [&p](const Vertex& a, const Vertex& b, const Vertex& c) {
        return InverseOfSquare(a, p) * InverseOfSquare(b, p) * InverseOfSquare(c, p);
    });
    return {.x = static_cast<double>(sum.u), .y = static_cast<double>(sum.v)};
}

geo::GeoPosition ExactToGeo(std::span<const ReferencePoint> points, Pixel pixel)
{
    std::vector<Vertex> vertices;
    for (const ReferencePoint& point : points) {
        vertices.push_back({point.X, point.Y, point.Longitude, point.Latitude});
    }
    const Vertex p = {pixel.x, pixel.y, 0, 0};
    const Blend sum =
        Blended(vertices, p, [&p](const Vertex& a, const Vertex& /*b*/, const Vertex& /*c*/) {
            return InverseOfSquare(a, p);
        });
    return {.latitude = static_cast<double>(sum.v), .longitude = static_cast<double>(sum.u)};
}

}  // namespace map
