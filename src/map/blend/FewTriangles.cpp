#include "map/blend/FewTriangles.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "map/blend/ForwardSums.h"
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
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (std::size_t j = i + 1; j < points.size(); ++j) {
            for (std::size_t k = j + 1; k < points.size(); ++k) {
                Add(points[i], points[j], points[k]);
            }
        }
    }
}

void FewTriangles::Add(const ReferencePoint& a, const ReferencePoint& b, const ReferencePoint& c)
{
    // Extended precision: a thin triangle magnifies every error of its map.
    using Extended = long double;
    const Extended bx = static_cast<Extended>(b.Longitude) - a.Longitude;
    const Extended by = static_cast<Extended>(b.Latitude) - a.Latitude;
    const Extended cx = static_cast<Extended>(c.Longitude) - a.Longitude;
    const Extended cy = static_cast<Extended>(c.Latitude) - a.Latitude;
    const Extended cross = bx * cy - by * cx;
    const auto areaSquared = static_cast<double>(cross * cross / 4);
    if (!std::isnormal(areaSquared)) {
        return;
    }
    const auto slope = [cross](Extended first, Extended second) {
        return static_cast<double>((first - second) / cross);
    };
    Affine triangle = {.rotations = 0.0,
                       .areaSquared = areaSquared,
                       .x = a.X,
                       .y = a.Y,
                       .xx = slope((b.X - a.X) * cy, (c.X - a.X) * by),
                       .xy = slope((c.X - a.X) * bx, (b.X - a.X) * cx),
                       .yx = slope((b.Y - a.Y) * cy, (c.Y - a.Y) * by),
                       .yy = slope((c.Y - a.Y) * bx, (b.Y - a.Y) * cx)};
    const ReferencePoint* const points[] = {&a, &b, &c};
    for (std::size_t r = 0; r < 3; ++r) {
        const ReferencePoint& from = *points[(r + 1) % 3];
        const ReferencePoint& to = *points[(r + 2) % 3];
        triangle.corners[r] = {
            .place = {.x = points[r]->Longitude, .y = points[r]->Latitude},
            .base = {.x = to.Longitude - from.Longitude, .y = to.Latitude - from.Latitude}};
        triangle.rotations += triangle.corners[r].base.x != 0.0 ? 1.0 : 0.0;
    }
    triangles_.push_back(triangle);
}

// Rotations of a triangle whose line from the apex through P is parallel to the base.
double FewTriangles::LeftOut(const Affine& triangle, PlanePoint p)
{
    double count = 0.0;
    for (std::size_t r = 0; r < 3; ++r) {
        const auto& corners = triangle.corners;
        if (corners[r].base.x != 0.0
            && ExactlyParallel(p, corners[r].place, corners[(r + 1) % 3].place,
                               corners[(r + 2) % 3].place)) {
            count += 1.0;
        }
    }
    return count;
}

template <std::size_t kSide>
void FewTriangles::TakeOffParallel(std::array<double, kSide>& weight, const Affine& triangle,
                                   const std::array<PlanePoint, kSide>& places,
                                   const std::array<std::int64_t, kSide>& parallel)
{
    for (std::size_t i = 0; i < kSide; ++i) {
        if (parallel[i] != 0) {
            weight[i] *= (triangle.rotations - LeftOut(triangle, places[i])) / triangle.rotations;
        }
    }
}

template <std::size_t kSide>
void FewTriangles::At(const std::array<PlanePoint, kSide>& places,
                      std::span<Pixel, kSide> pixels) const
{
    Row<kSide> sum = {};
    Row<kSide> sumX = {};
    Row<kSide> sumY = {};
    for (const Affine& t : triangles_) {
        Row<kSide> weight;
        std::array<std::int64_t, kSide> parallel = {};
        weight.fill(1.0);
        for (const Corner& corner : t.corners) {
            for (std::size_t i = 0; i < kSide; ++i) {
                const double dx = places[i].x - corner.place.x;
                const double dy = places[i].y - corner.place.y;
                const double first = dx * corner.base.y;
                const double second = dy * corner.base.x;
                weight[i] *= dx * dx + dy * dy + kCoincident;
                parallel[i] |= std::fabs(first - second) <= kRounding * std::fabs(first) ? 1 : 0;
            }
        }
        for (std::size_t i = 0; i < kSide; ++i) {
            // One division for all three weights.
            weight[i] = t.rotations * t.areaSquared / weight[i];
        }
        TakeOffParallel(weight, t, places, parallel);
        for (std::size_t i = 0; i < kSide; ++i) {
            const double dx = places[i].x - t.corners[0].place.x;
            const double dy = places[i].y - t.corners[0].place.y;
            sum[i] += weight[i];
            sumX[i] += weight[i] * (t.x + t.xx * dx + t.xy * dy);
            sumY[i] += weight[i] * (t.y + t.yx * dx + t.yy * dy);
        }
    }
    for (std::size_t i = 0; i < kSide; ++i) {
        pixels[i] =
            std::isnormal(sum[i]) ? Pixel{.x = sumX[i] / sum[i], .y = sumY[i] / sum[i]} : Pixel{};
    }
}

template void FewTriangles::At(const std::array<PlanePoint, 1>&, std::span<Pixel, 1>) const;
template void FewTriangles::At(const std::array<PlanePoint, kManySides>&,
                               std::span<Pixel, kManySides>) const;

}  // namespace map
