#include "map/blend/ForwardBlend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "map/blend/Elimination.h"
#include "map/blend/ForwardSums.h"
#include "map/blend/Moments.h"

namespace map {

namespace {

// Beyond this many times the table's extent from its middle, sums start at the middle.
constexpr double kFar = 4.0;

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
    few_.Clear();
    columns_.clear();
    TakePoints(points);
    TriangleSurvey survey = SurveyTriangles(places_);
    if (std::find(survey.used.begin(), survey.used.end(), false) != survey.used.end()) {
        std::vector<ReferencePoint> used;
        for (std::size_t i = 0; i < points_.size(); ++i) {
            if (survey.used[i]) {
                used.push_back(points_[i]);
            }
        }
        TakePoints(used);
        survey = SurveyTriangles(places_);
    }
    collinear_ = std::move(survey.collinear);
    if (survey.usable <= FewTriangles::kMost) {
        PrepareFewTriangles();
    } else {
        PrepareMoments();
    }
}

void ForwardBlend::TakePoints(std::span<const ReferencePoint> points)
{
    points_.clear();
    for (const ReferencePoint& point : points) {
        if (InRange(Place(point)) && InRange({.x = point.X, .y = point.Y})) {
            points_.push_back(point);
        }
    }
    std::sort(points_.begin(), points_.end(), [](const ReferencePoint& a, const ReferencePoint& b) {
        return a.Longitude < b.Longitude;
    });
    places_.clear();
    for (const ReferencePoint& point : points_) {
        places_.push_back(Place(point));
    }
}

void ForwardBlend::PrepareFewTriangles()
{
    ForEachTriangle(places_, [this](const Triangle& t, const Shape& shape) {
        if (!shape.collinear) {
            few_.Add(points_[t.i], points_[t.j], points_[t.k]);
        }
    });
    points_.clear();
}

void ForwardBlend::PrepareMoments()
{
    bases_.Prepare(places_);
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

    const auto [south, north] = std::minmax_element(
        places_.begin(), places_.end(), [](PlanePoint a, PlanePoint b) { return a.y < b.y; });
    const double width = places_.back().x - places_.front().x;
    const double height = north->y - south->y;
    extent_ = {
        .middle = {.x = places_.front().x + width / 2.0, .y = south->y + height / 2.0},
        .far = kFar * std::max(width, height),
    };
    packs_ = PackPoints(points_);
    packedColumns_ = PackColumns(points_, columns_);
    spread_ = SpreadPoints(points_);
}

PreparedPoints ForwardBlend::Prepared() const
{
    return {.packs = packs_,
            .packedColumns = packedColumns_,
            .spread = spread_,
            .columns = columns_,
            .bases = bases_,
            .extent = extent_};
}

Pixel ForwardBlend::At(geo::GeoPosition position) const
{
    if (!IsFinite(position)) {
        return {.x = kNaN, .y = kNaN};
    }
    return points_.empty() ? few_.At(Place(position)) : ByMoments(Place(position));
}

void ForwardBlend::At(std::span<const geo::GeoPosition> positions, std::span<Pixel> pixels) const
{
    if (points_.empty()) {
        std::transform(positions.begin(), positions.end(), pixels.begin(),
                       [this](geo::GeoPosition position) { return At(position); });
        return;
    }
    const PreparedPoints prepared = Prepared();
    for (std::size_t i = 0; i < positions.size(); i += kLanes) {
        const std::size_t count = std::min(kLanes, positions.size() - i);
        PackOfPixels found;
        if (count == kLanes) {
            found = FitPlaces(prepared, positions.subspan(i).first<kLanes>());
        } else {
            std::array<geo::GeoPosition, kLanes> last = {};
            std::copy_n(positions.begin() + static_cast<std::ptrdiff_t>(i), count, last.begin());
            found = FitPlaces(prepared, last);
        }
        for (std::size_t lane = 0; lane < count; ++lane) {
            const bool usable = found.done[lane] && collinear_.empty();
            pixels[i + lane] = usable ? found.pixels[lane] : At(positions[i + lane]);
        }
    }
}

Pixel ForwardBlend::ByMoments(PlanePoint p) const
{
    const PointSums sums = SumPoints(Prepared(), p);
    WeightedPixel<double> sum = sums.exact ? sums.sum : BlendByElimination(points_, columns_, p);
    for (const Triangle& t : collinear_) {
        const bool onColumn = places_[t.i].x == places_[t.j].x || places_[t.j].x == places_[t.k].x;
        SubtractTriangle(sum, p, t, onColumn ? 2.0 : 3.0);
    }
    for (std::size_t i = 0; i < sums.count; ++i) {
        SubtractParallel(sum, p, sums.inLine[i]);
    }
    if (sum.weight == 0.0) {
        return {};
    }
    return {.x = sum.x / sum.weight, .y = sum.y / sum.weight};
}

void ForwardBlend::SubtractParallel(WeightedPixel<double>& sum, PlanePoint p, std::size_t c) const
{
    const PlanePoint apex = places_[c];
    for (const auto& [slope, a, b] : bases_.Near(p.x - apex.x, p.y - apex.y)) {
        if (a != c && b != c && ExactlyParallel(p, apex, places_[a], places_[b])
            && !ShapeOf(places_[a], places_[b], apex).collinear) {
            SubtractTriangle(sum, p, {a, b, static_cast<std::uint16_t>(c)}, 1.0);
        }
    }
}

void ForwardBlend::SubtractTriangle(WeightedPixel<double>& sum, PlanePoint p, const Triangle& t,
                                    double rotations) const
{
    const ReferencePoint& a = points_[t.i];
    const ReferencePoint& b = points_[t.j];
    const ReferencePoint& c = points_[t.k];
    const SeenPlace fromA = Seen(places_[t.i], p);
    const SeenPlace fromB = Seen(places_[t.j], p);
    const SeenPlace fromC = Seen(places_[t.k], p);
    const Extended ofA = fromB.x * fromC.y - fromB.y * fromC.x;
    const Extended ofB = fromC.x * fromA.y - fromC.y * fromA.x;
    const Extended ofC = fromA.x * fromB.y - fromA.y * fromB.x;
    const Extended cross = ofA + ofB + ofC;
    const Extended weight = rotations * PointWeight(fromA.x, fromA.y)
                            * PointWeight(fromB.x, fromB.y) * PointWeight(fromC.x, fromC.y) * cross;
    sum.weight -= static_cast<double>(weight * cross);
    sum.x -= static_cast<double>(weight * (ofA * a.X + ofB * b.X + ofC * c.X));
    sum.y -= static_cast<double>(weight * (ofA * a.Y + ofB * b.Y + ofC * c.Y));
}

}  // namespace map
