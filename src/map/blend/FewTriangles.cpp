#include "map/blend/FewTriangles.h"

#include "map/blend/Lanes.h"
#include "map/blend/Moments.h"
#include "map/blend/ParallelBases.h"

namespace map {

namespace {

static_assert(FewTriangles::kMost == kLanes, "one triangle to a lane");

// Products of equal sides may differ by less than this part but for rounding.
constexpr double kRounding = 1e-14;

[[gnu::always_inline]] inline Lanes Magnitude(const Lanes& v)
{
    return v < 0.0 ? -v : v;
}

}  // namespace

void FewTriangles::Clear()
{
    *this = FewTriangles();
}

void FewTriangles::Add(const ReferencePoint& a, const ReferencePoint& b, const ReferencePoint& c)
{
    const ReferencePoint* const points[] = {&a, &b, &c};
    const std::size_t i = size_++;
    for (std::size_t r = 0; r < 3; ++r) {
        const ReferencePoint& from = *points[(r + 1) % 3];
        const ReferencePoint& to = *points[(r + 2) % 3];
        corners_[r].x[i] = points[r]->Longitude;
        corners_[r].y[i] = points[r]->Latitude;
        corners_[r].baseX[i] = to.Longitude - from.Longitude;
        corners_[r].baseY[i] = to.Latitude - from.Latitude;
        rotations_[i] += corners_[r].baseX[i] != 0.0 ? 1.0 : 0.0;
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
    areaSquared_[i] = static_cast<double>(cross * cross / 4);
    x_[i] = a.X;
    y_[i] = a.Y;
    xx_[i] = slope((b.X - a.X) * cy, (c.X - a.X) * by);
    xy_[i] = slope((c.X - a.X) * bx, (b.X - a.X) * cx);
    yx_[i] = slope((b.Y - a.Y) * cy, (c.Y - a.Y) * by);
    yy_[i] = slope((c.Y - a.Y) * bx, (b.Y - a.Y) * cx);
}

// Rotations of a triangle whose line from the apex through P is parallel to the base.
double FewTriangles::LeftOut(std::size_t triangle, PlanePoint p) const
{
    double count = 0.0;
    for (std::size_t r = 0; r < 3; ++r) {
        const auto corner = [this, triangle, r](std::size_t next) {
            const Corner& c = corners_[(r + next) % 3];
            return PlanePoint{.x = c.x[triangle], .y = c.y[triangle]};
        };
        if (corners_[r].baseX[triangle] != 0.0
            && ExactlyParallel(p, corner(0), corner(1), corner(2))) {
            count += 1.0;
        }
    }
    return count;
}

// All triangles at once, one to a lane.
KOMPASSO_WIDE Pixel FewTriangles::At(PlanePoint p) const
{
    const Lanes px = Spread(p.x);
    const Lanes py = Spread(p.y);
    Lanes distances = Spread(1.0);  // one division for all three weights
    LaneMask parallel = {};
    for (const Corner& corner : corners_) {
        const Lanes dx = px - Load(corner.x);
        const Lanes dy = py - Load(corner.y);
        distances *= GuardedSquare(dx, dy);
        const Lanes baseX = Load(corner.baseX);
        const Lanes first = dx * Load(corner.baseY);
        const Lanes second = dy * baseX;
        parallel |= (Magnitude(first - second) <= kRounding * Magnitude(first)) & (baseX != 0.0);
    }
    Lanes rotations = Load(rotations_);
    if (Any(parallel)) {
        for (std::size_t i = 0; i < size_; ++i) {
            rotations[i] -= LeftOut(i, p);
        }
    }
    const Lanes weight = rotations * Load(areaSquared_) / distances;
    const Lanes dx = px - Load(corners_[0].x);
    const Lanes dy = py - Load(corners_[0].y);
    const Lanes x = Load(x_) + Load(xx_) * dx + Load(xy_) * dy;
    const Lanes y = Load(y_) + Load(yx_) * dx + Load(yy_) * dy;
    const double sum = SumOf(weight);
    if (sum == 0.0) {
        return {};
    }
    return {.x = SumOf(weight * x) / sum, .y = SumOf(weight * y) / sum};
}

}  // namespace map
