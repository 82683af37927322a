#include "map/FewTriangles.h"

#include <cmath>

#include "map/Moments.h"
#include "map/ParallelBases.h"

namespace map {

void FewTriangles::Add(const ReferencePoint& a, const ReferencePoint& b, const ReferencePoint& c)
{
    Prepared& t = triangles_[size_++];
    t.corner = {{{a.Longitude, a.Latitude}, {b.Longitude, b.Latitude}, {c.Longitude, c.Latitude}}};
    t.rotations = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const PlanePoint from = t.corner[(i + 1) % 3];
        const PlanePoint to = t.corner[(i + 2) % 3];
        t.base[i] = {to.x - from.x, to.y - from.y};
        t.rotations += t.base[i].x != 0.0 ? 1 : 0;
    }
    // Extended precision: a thin triangle magnifies every error of its map.
    using Extended = long double;
    const Extended bx = static_cast<Extended>(b.Longitude) - a.Longitude;
    const Extended by = static_cast<Extended>(b.Latitude) - a.Latitude;
    const Extended cx = static_cast<Extended>(c.Longitude) - a.Longitude;
    const Extended cy = static_cast<Extended>(c.Latitude) - a.Latitude;
    const Extended cross = bx * cy - by * cx;
    const auto slope = [cross](Extended first, Extended second) {
        return static_cast<double>((first - second) / cross);
    };
    t.areaSquared = static_cast<double>(cross * cross / 4);
    t.x = a.X;
    t.y = a.Y;
    t.xx = slope((b.X - a.X) * cy, (c.X - a.X) * by);
    t.xy = slope((c.X - a.X) * bx, (b.X - a.X) * cx);
    t.yx = slope((b.Y - a.Y) * cy, (c.Y - a.Y) * by);
    t.yy = slope((c.Y - a.Y) * bx, (b.Y - a.Y) * cx);
}

int FewTriangles::LeftOut(const Prepared& triangle, PlanePoint p)
{
    int count = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const PlanePoint apex = triangle.corner[i];
        const PlanePoint base = triangle.base[i];
        const double first = (p.x - apex.x) * base.y;
        const double second = (p.y - apex.y) * base.x;
        const bool close = std::fabs(first - second) <= 1e-14 * std::fabs(first);
        if (close && base.x != 0.0
            && ExactlyParallel(p, apex, triangle.corner[(i + 1) % 3],
                               triangle.corner[(i + 2) % 3])) {
            ++count;
        }
    }
    return count;
}

Pixel FewTriangles::At(PlanePoint p) const
{
    double weight = 0.0;
    double x = 0.0;
    double y = 0.0;
    for (std::size_t i = 0; i < size_; ++i) {
        const Prepared& t = triangles_[i];
        const double dx = p.x - t.corner[0].x;
        const double dy = p.y - t.corner[0].y;
        const double w = PointWeight(dx, dy) * PointWeight(p.x - t.corner[1].x, p.y - t.corner[1].y)
                         * PointWeight(p.x - t.corner[2].x, p.y - t.corner[2].y) * t.areaSquared
                         * (t.rotations - LeftOut(t, p));
        weight += w;
        x += w * (t.x + t.xx * dx + t.xy * dy);
        y += w * (t.y + t.yx * dx + t.yy * dy);
    }
    if (weight == 0.0) {
        return {};
    }
    return {.x = x / weight, .y = y / weight};
}

}  // namespace map
