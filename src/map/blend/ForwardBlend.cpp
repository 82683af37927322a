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

// The place of a finite position.
PlanePoint Place(geo::GeoPosition position)
{
    return {.x = std::clamp(position.longitude, -kFarthestPoint, kFarthestPoint),
            .y = std::clamp(position.latitude, -kFarthestPoint, kFarthestPoint)};
}

// A place from P, in extended precision: the area of a thin triangle is a small difference.
using Extended = long double;

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
    Pixel pixel;
    Find<1>(std::span<const geo::GeoPosition, 1>(&position, 1), std::span<Pixel, 1>(&pixel, 1),
            seenByOne_);
    return pixel;
}

void ForwardBlend::At(std::span<const geo::GeoPosition> positions, std::span<Pixel> pixels) const
{
    while (positions.size() >= kManySides) {
        Find<kManySides>(positions.first<kManySides>(), pixels.first<kManySides>(), seenByMany_);
        positions = positions.subspan(kManySides);
        pixels = pixels.subspan(kManySides);
    }
    std::transform(positions.begin(), positions.end(), pixels.begin(),
                   [this](geo::GeoPosition position) { return At(position); });
}

template <std::size_t kSide>
void ForwardBlend::Find(std::span<const geo::GeoPosition, kSide> positions,
                        std::span<Pixel, kSide> pixels, Scratch<kSide>& seen) const
{
    std::array<PlanePoint, kSide> places;
    for (std::size_t i = 0; i < kSide; ++i) {
        places[i] = IsFinite(positions[i]) ? Place(positions[i]) : PlanePoint{};
    }
    if (!usable_) {
        std::fill(pixels.begin(), pixels.end(), Pixel{});
    } else if (points_.size() <= FewTriangles::kMostPoints) {
        few_.At<kSide>(places, pixels);
    } else {
        FindBySums<kSide>(places, pixels, seen);
    }
    for (std::size_t i = 0; i < kSide; ++i) {
        if (!IsFinite(positions[i])) {
            pixels[i] = {.x = kNaN, .y = kNaN};
        }
    }
}

template <std::size_t kSide>
void ForwardBlend::FindBySums(const std::array<PlanePoint, kSide>& places,
                              std::span<Pixel, kSide> pixels, Scratch<kSide>& seen) const
{
    seen.resize(points_.size());
    ForwardSums<kSide> sums = SumUp<kSide>(points_, columns_, places, seen);
    for (std::size_t i = 0; i < kSide; ++i) {
        if (elimination_.IsThin() || !sums.exact[i]) {
            sums.sum[i] = elimination_.At(points_, columns_, places[i]);
        }
    }
    const DirectionFilter filter = bases_.Filter();
    for (std::size_t c = 0; c < points_.size() && !bases_.All().empty(); ++c) {
        for (std::size_t i = 0; i < kSide; ++i) {
            if (filter.Possible(seen[c].step[i])) {
                SubtractParallel(sums.sum[i], places[i], c);
            }
        }
    }
    for (std::size_t i = 0; i < kSide; ++i) {
        const WeightedPixel& sum = sums.sum[i];
        pixels[i] = std::isnormal(sum.weight)
                        ? Pixel{.x = sum.x / sum.weight, .y = sum.y / sum.weight}
                        : Pixel{};
    }
}

void ForwardBlend::SubtractParallel(WeightedPixel& sum, PlanePoint p, std::size_t c) const
{
    const PlanePoint apex = places_[c];
    for (const auto& [slope, a, b] : bases_.Near(p.x - apex.x, p.y - apex.y)) {
        if (Cross(places_[a], places_[b], apex) != 0.0
            && ExactlyParallel(p, apex, places_[a], places_[b])) {
            SubtractRotation(sum, p, points_[a], points_[b], points_[c]);
        }
    }
}

void ForwardBlend::SubtractRotation(WeightedPixel& sum, PlanePoint p, const ReferencePoint& a,
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
    sum.weight -= static_cast<double>(weight * cross);
    sum.x -= static_cast<double>(weight * (ofA * a.X + ofB * b.X + ofC * c.X));
    sum.y -= static_cast<double>(weight * (ofA * a.Y + ofB * b.Y + ofC * c.Y));
}

}  // namespace map
