#include "map/blend/FewTriangles.h"

#include <cmath>
#include <cstddef>

#include "map/blend/ParallelBases.h"
#include "map/blend/Weights.h"

namespace map {

namespace {

// Products of equal sides may differ by less than this part but for rounding.
constexpr double kRounding = 1e-14;

}  // namespace

void FewTriangles::Prepare(std::span<const ReferencePoint> points)
{
    triangles_.clear();
    places_.clear();
    for (const ReferencePoint& point : points) {
        places_.push_back({.x = point.Longitude, .y = point.Latitude});
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (std::size_t j = i + 1; j < points.size(); ++j) {
            for (std::size_t k = j + 1; k < points.size(); ++k) {
                Add(points, i, j, k);
            }
        }
    }
}

void FewTriangles::Add(std::span<const ReferencePoint> points, std::size_t i, std::size_t j,
                       std::size_t k)
{
    // Extended precision: a thin triangle magnifies every error of its map.
    const ReferencePoint& a = points[i];
    const ReferencePoint& b = points[j];
    const ReferencePoint& c = points[k];
    const Extended bx = static_cast<Extended>(b.Longitude) - a.Longitude;
    const Extended by = static_cast<Extended>(b.Latitude) - a.Latitude;
    const Extended cx = static_cast<Extended>(c.Longitude) - a.Longitude;
    const Extended cy = static_cast<Extended>(c.Latitude) - a.Latitude;
    const Extended cross = bx * cy - by * cx;
    const auto areaSquared = static_cast<double>(cross * cross);
    if (!std::isnormal(areaSquared)) {
        return;
    }
    const auto slope = [cross](Extended first, Extended second) {
        return static_cast<double>((first - second) / cross);
    };
    const auto corner = [this](std::size_t apex, std::size_t from, std::size_t to) {
        return Corner{
            .point = apex,
            .base = {.x = places_[to].x - places_[from].x, .y = places_[to].y - places_[from].y}};
    };
    Affine triangle = {.corners = {corner(i, j, k), corner(j, k, i), corner(k, i, j)},
                       .other = 6 - i - j - k,
                       .rotations = 0.0,
                       .areaSquared = areaSquared,
                       .x = a.X,
                       .y = a.Y,
                       .xx = slope((b.X - a.X) * cy, (c.X - a.X) * by),
                       .xy = slope((c.X - a.X) * bx, (b.X - a.X) * cx),
                       .yx = slope((b.Y - a.Y) * cy, (c.Y - a.Y) * by),
                       .yy = slope((c.Y - a.Y) * bx, (b.Y - a.Y) * cx)};
    for (const Corner& opposite : triangle.corners) {
        triangle.rotations += opposite.base.x != 0.0 ? 1.0 : 0.0;
    }
    triangles_.push_back(triangle);
}

// Rotations of a triangle whose line from the apex through P is parallel to the base.
double FewTriangles::LeftOut(const Affine& triangle, PlanePoint p) const
{
    double count = 0.0;
    for (std::size_t r = 0; r < 3; ++r) {
        const auto& corners = triangle.corners;
        if (corners[r].base.x != 0.0
            && ExactlyParallel(p, places_[corners[r].point], places_[corners[(r + 1) % 3].point],
                               places_[corners[(r + 2) % 3].point])) {
            count += 1.0;
        }
    }
    return count;
}

Pixel FewTriangles::At(PlanePoint p) const
{
    std::array<double, kMostPoints> fromX;
    std::array<double, kMostPoints> fromY;
    std::array<double, kMostPoints> distance2 = {1.0, 1.0, 1.0, 1.0};
    for (std::size_t i = 0; i < places_.size(); ++i) {
        fromX[i] = p.x - places_[i].x;
        fromY[i] = p.y - places_[i].y;
        distance2[i] = fromX[i] * fromX[i] + fromY[i] * fromY[i] + kCoincident;
    }
    WeightedPixel sum;
    for (const Affine& t : triangles_) {
        bool parallel = false;
        for (const Corner& corner : t.corners) {
            const double first = fromX[corner.point] * corner.base.y;
            const double second = fromY[corner.point] * corner.base.x;
            parallel |= std::fabs(first - second) <= kRounding * std::fabs(first);
        }
        const double rotations = parallel ? t.rotations - LeftOut(t, p) : t.rotations;
        // All weights are taken times all squared distances, so that none is divided by three.
        const double weight = rotations * t.areaSquared * distance2[t.other];
        const double dx = fromX[t.corners[0].point];
        const double dy = fromY[t.corners[0].point];
        sum.weight += weight;
        sum.x += weight * (t.x + t.xx * dx + t.xy * dy);
        sum.y += weight * (t.y + t.yx * dx + t.yy * dy);
    }
    if (!std::isnormal(sum.weight)) {
        return {};
    }
    return {.x = sum.x / sum.weight, .y = sum.y / sum.weight};
}

}  // namespace map
