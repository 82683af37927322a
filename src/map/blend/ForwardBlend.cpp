#include "map/blend/ForwardBlend.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "map/blend/HasTriangle.h"
#include "map/blend/Weights.h"

namespace map {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

PlanePoint Place(const ReferencePoint& point)
{
    return {.x = point.Longitude, .y = point.Latitude};
}

bool IsFinite(geo::GeoPosition position)
{
    return std::isfinite(position.longitude) && std::isfinite(position.latitude);
}

// The place of a position; any when it is not finite.
PlanePoint Place(geo::GeoPosition position)
{
    if (!IsFinite(position)) {
        return {};
    }
    return {.x = std::clamp(position.longitude, -kFarthestPoint, kFarthestPoint),
            .y = std::clamp(position.latitude, -kFarthestPoint, kFarthestPoint)};
}

// A place from P: the area of a thin triangle is a small difference.
struct SeenPlace {
    Extended x;
    Extended y;
};

SeenPlace Seen(PlanePoint place, PlanePoint p)
{
    return {.x = static_cast<Extended>(place.x) - p.x, .y = static_cast<Extended>(place.y) - p.y};
}

}  // namespace

void ForwardBlend::Prepare(std::span<const ReferencePoint> points)
{
    points_.clear();
    places_.clear();
    columns_.clear();
    for (const ReferencePoint& point : points) {
        if (InRange(Place(point)) && InRange({.x = point.X, .y = point.Y})) {
            points_.push_back(point);
        }
    }
    std::sort(points_.begin(), points_.end(), [](const ReferencePoint& a, const ReferencePoint& b) {
        return a.Longitude < b.Longitude;
    });
    for (const ReferencePoint& point : points_) {
        places_.push_back(Place(point));
    }
    usable_ = HasTriangle(places_);
    if (!usable_) {
        return;
    }
    if (points_.size() <= FewTriangles::kMostPoints) {
        few_.Prepare(points_);
        return;
    }
    bases_.Prepare(places_);
    elimination_.Prepare(points_);
    for (std::size_t begin = 0; begin < points_.size();) {
        std::size_t end = begin + 1;
        while (end < points_.size() && places_[end].x == places_[begin].x) {
            ++end;
        }
        if (end - begin > 1) {
            columns_.push_back({.begin = begin, .end = end});
        }
        begin = end;
    }
}

Pixel ForwardBlend::At(geo::GeoPosition position) const
{
    if (!IsFinite(position)) {
        return {.x = kNaN, .y = kNaN};
    }
    if (!usable_) {
        return {};
    }
    if (points_.size() <= FewTriangles::kMostPoints) {
        return few_.At(Place(position));
    }
    const PlanePoint place = Place(position);
    return Find<1>({.x = {place.x}, .y = {place.y}}, seenByOne_).front();
}

void ForwardBlend::At(std::span<const geo::GeoPosition> positions, std::span<Pixel> pixels) const
{
    Places<kManySides> places;
    while (positions.size() >= kManySides && usable_
           && points_.size() > FewTriangles::kMostPoints) {
        for (std::size_t i = 0; i < kManySides; ++i) {
            const PlanePoint place = Place(positions[i]);
            places.x[i] = place.x;
            places.y[i] = place.y;
        }
        const std::array<Pixel, kManySides> found = Find<kManySides>(places, seenByMany_);
        for (std::size_t i = 0; i < kManySides; ++i) {
            pixels[i] = IsFinite(positions[i]) ? found[i] : Pixel{.x = kNaN, .y = kNaN};
        }
        positions = positions.subspan(kManySides);
        pixels = pixels.subspan(kManySides);
    }
    std::transform(positions.begin(), positions.end(), pixels.begin(),
                   [this](geo::GeoPosition position) { return At(position); });
}

template <std::size_t kSide>
PixelRows<kSide> ForwardBlend::SumUpCarefully(const Places<kSide>& places,
                                              Scratch<kSide>& seen) const
{
    ForwardSums<kSide> sums;
    if (elimination_.IsThin()) {
        See<kSide>(points_, places, seen);
    } else {
        sums = SumUp<kSide>(points_, columns_, places, seen);
    }
    PixelRows<kSide>& sum = sums.sum;
    if (std::find(sums.exact.begin(), sums.exact.end(), false) != sums.exact.end()) {
        const PixelRows<kSide> careful = elimination_.At<kSide>(points_, columns_, places, seen);
        for (std::size_t i = 0; i < kSide; ++i) {
            sum.weight[i] = sums.exact[i] ? sum.weight[i] : careful.weight[i];
            sum.x[i] = sums.exact[i] ? sum.x[i] : careful.x[i];
            sum.y[i] = sums.exact[i] ? sum.y[i] : careful.y[i];
        }
    }
    return sum;
}

template <std::size_t kSide>
std::array<Pixel, kSide> ForwardBlend::Find(const Places<kSide>& places, Scratch<kSide>& seen) const
{
    seen.resize(points_.size());
    PixelRows<kSide> sum = SumUpCarefully<kSide>(places, seen);
    const DirectionFilter filter = bases_.Filter();
    for (std::size_t c = 0; c < points_.size() && !bases_.All().empty(); ++c) {
        for (std::size_t i = 0; i < kSide; ++i) {
            if (filter.Possible(seen[c].step[i])) {
                const WeightedPixel parallel =
                    ParallelAround(c, {.x = places.x[i], .y = places.y[i]});
                sum.weight[i] -= parallel.weight;
                sum.x[i] -= parallel.x;
                sum.y[i] -= parallel.y;
            }
        }
    }
    std::array<Pixel, kSide> pixels;
    for (std::size_t i = 0; i < kSide; ++i) {
        pixels[i] = std::isnormal(sum.weight[i])
                        ? Pixel{.x = sum.x[i] / sum.weight[i], .y = sum.y[i] / sum.weight[i]}
                        : Pixel{};
    }
    return pixels;
}

WeightedPixel ForwardBlend::ParallelAround(std::size_t c, PlanePoint p) const
{
    WeightedPixel sum;
    const PlanePoint apex = places_[c];
    for (const auto& [slope, a, b] : bases_.Near(p.x - apex.x, p.y - apex.y)) {
        if (Cross(places_[a], places_[b], apex) != 0.0
            && ExactlyParallel(p, apex, places_[a], places_[b])) {
            AddRotation(sum, p, points_[a], points_[b], points_[c]);
        }
    }
    return sum;
}

void ForwardBlend::AddRotation(WeightedPixel& sum, PlanePoint p, const ReferencePoint& a,
                               const ReferencePoint& b, const ReferencePoint& c)
{
    const SeenPlace fromA = Seen(Place(a), p);
    const SeenPlace fromB = Seen(Place(b), p);
    const SeenPlace fromC = Seen(Place(c), p);
    const Extended ofA = fromB.x * fromC.y - fromB.y * fromC.x;
    const Extended ofB = fromC.x * fromA.y - fromC.y * fromA.x;
    const Extended ofC = fromA.x * fromB.y - fromA.y * fromB.x;
    const Extended cross = ofA + ofB + ofC;
    const Extended weight = PointWeight(fromA.x, fromA.y) * PointWeight(fromB.x, fromB.y)
                            * PointWeight(fromC.x, fromC.y) * cross;
    sum.weight += static_cast<double>(weight * cross);
    sum.x += static_cast<double>(weight * (ofA * a.X + ofB * b.X + ofC * c.X));
    sum.y += static_cast<double>(weight * (ofA * a.Y + ofB * b.Y + ofC * c.Y));
}

}  // namespace map
