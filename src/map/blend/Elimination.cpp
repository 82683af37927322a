#include "map/blend/Elimination.h"

#include <cmath>
#include <cstddef>

namespace map {

namespace {

// Extents across the strip below this part, squared, of those along it.
constexpr double kThin = 1e-2;

template <std::size_t kSide>
void Add(PixelRows<kSide>& sums, Row<kSide> share, const ReferencePoint& point)
{
    for (std::size_t i = 0; i < kSide; ++i) {
        sums.weight[i] += share[i];
        sums.x[i] += share[i] * point.X;
        sums.y[i] += share[i] * point.Y;
    }
}

}  // namespace

// The points as they are seen from positions side by side.
template <std::size_t kSide>
struct Elimination::View {
    Row<kSide> x, y, pAlong, pAcross;      // of the positions
    Row<kSide> one = {};                   // sum of the weights
    Row<kSide> along = {}, across = {};    // weighted means
    Row<kSide> aa = {}, ab = {}, bb = {};  // weighted squares about them
    Row<kSide> slope = {};                 // of the line fitted along
    Row<kSide> rest = {};                  // squares across about that line
    Row<kSide> meanX, meanY, xx, xy;       // the same means and squares in degrees
    Row<kSide> ofOne, ofAlong, ofRest;     // a point's share, per its weight
};

Elimination::Place Elimination::PlaceOf(PlanePoint p) const
{
    const Extended x = static_cast<Extended>(p.x) - middle_.x;
    const Extended y = static_cast<Extended>(p.y) - middle_.y;
    return {.x = static_cast<double>(x),
            .y = static_cast<double>(y),
            .along = static_cast<double>(cosine_ * x + sine_ * y),
            .across = static_cast<double>(cosine_ * y - sine_ * x)};
}

void Elimination::Prepare(std::span<const ReferencePoint> points)
{
    const auto count = static_cast<double>(points.size());
    middle_ = {};
    for (const ReferencePoint& point : points) {
        middle_.x += point.Longitude / count;
        middle_.y += point.Latitude / count;
    }
    Extended xx = 0;
    Extended xy = 0;
    Extended yy = 0;
    for (const ReferencePoint& point : points) {
        const Extended x = static_cast<Extended>(point.Longitude) - middle_.x;
        const Extended y = static_cast<Extended>(point.Latitude) - middle_.y;
        xx += x * x;
        xy += x * y;
        yy += y * y;
    }
    thin_ = xx * yy - xy * xy < kThin * (xx + yy) * (xx + yy);
    const Extended angle = std::atan2(2 * xy, xx - yy) / 2;
    cosine_ = std::cos(angle);
    sine_ = std::sin(angle);
    places_.clear();
    for (const ReferencePoint& point : points) {
        places_.push_back(PlaceOf({.x = point.Longitude, .y = point.Latitude}));
    }
}

template <std::size_t kSide>
Elimination::View<kSide> Elimination::ViewFrom(const Places<kSide>& positions,
                                               std::span<const SeenPoint<kSide>> seen) const
{
    View<kSide> v;
    for (std::size_t i = 0; i < kSide; ++i) {
        const Place p = PlaceOf({.x = positions.x[i], .y = positions.y[i]});
        v.x[i] = p.x;
        v.y[i] = p.y;
        v.pAlong[i] = p.along;
        v.pAcross[i] = p.across;
    }
    for (std::size_t point = 0; point < seen.size(); ++point) {
        const Place p = places_[point];
        const Row<kSide> weight = seen[point].weight;
        for (std::size_t i = 0; i < kSide; ++i) {
            v.one[i] += weight[i];
            v.along[i] += weight[i] * p.along;
            v.across[i] += weight[i] * p.across;
        }
    }
    for (std::size_t i = 0; i < kSide; ++i) {
        v.along[i] /= v.one[i];
        v.across[i] /= v.one[i];
    }
    for (std::size_t point = 0; point < seen.size(); ++point) {
        const Place p = places_[point];
        const Row<kSide> weight = seen[point].weight;
        for (std::size_t i = 0; i < kSide; ++i) {
            const double a = p.along - v.along[i];
            const double b = p.across - v.across[i];
            v.aa[i] += weight[i] * a * a;
            v.ab[i] += weight[i] * a * b;
            v.bb[i] += weight[i] * b * b;
        }
    }
    for (std::size_t i = 0; i < kSide; ++i) {
        v.slope[i] = v.aa[i] > 0.0 ? v.ab[i] / v.aa[i] : 0.0;
    }
    for (std::size_t point = 0; point < seen.size(); ++point) {
        const Place p = places_[point];
        const Row<kSide> weight = seen[point].weight;
        for (std::size_t i = 0; i < kSide; ++i) {
            const double b = p.across - v.across[i] - v.slope[i] * (p.along - v.along[i]);
            v.rest[i] += weight[i] * b * b;
        }
    }
    const auto c = static_cast<double>(cosine_);
    const auto s = static_cast<double>(sine_);
    for (std::size_t i = 0; i < kSide; ++i) {
        const double pAlong = v.pAlong[i] - v.along[i];
        const double pRest = v.pAcross[i] - v.across[i] - v.slope[i] * pAlong;
        v.ofOne[i] = 3.0 * v.aa[i] * v.rest[i];
        v.ofAlong[i] = 3.0 * v.one[i] * v.rest[i] * pAlong;
        v.ofRest[i] = 3.0 * v.one[i] * v.aa[i] * pRest;
        v.meanX[i] = c * v.along[i] - s * v.across[i];
        v.meanY[i] = s * v.along[i] + c * v.across[i];
        v.xx[i] = c * c * v.aa[i] - 2.0 * c * s * v.ab[i] + s * s * v.bb[i];
        v.xy[i] = c * s * (v.aa[i] - v.bb[i]) + (c * c - s * s) * v.ab[i];
    }
    return v;
}

// Takes off the rotations over the bases of one column: from the shares what concerns any apex,
// from `sums` what concerns the points of the column.
template <std::size_t kSide>
void Elimination::TakeOff(std::span<const ReferencePoint> points, const Column& column,
                          std::span<const SeenPoint<kSide>> seen, View<kSide>& v,
                          PixelRows<kSide>& sums) const
{
    Row<kSide> one = {};
    Row<kSide> y = {};
    Row<kSide> yy = {};
    for (std::size_t point = column.begin; point < column.end; ++point) {
        for (std::size_t i = 0; i < kSide; ++i) {
            one[i] += seen[point].weight[i];
            y[i] += seen[point].weight[i] * places_[point].y;
        }
    }
    for (std::size_t i = 0; i < kSide; ++i) {
        y[i] /= one[i];
    }
    for (std::size_t point = column.begin; point < column.end; ++point) {
        for (std::size_t i = 0; i < kSide; ++i) {
            const double dy = places_[point].y - y[i];
            yy[i] += seen[point].weight[i] * dy * dy;
        }
    }
    const auto c = static_cast<double>(cosine_);
    const auto s = static_cast<double>(sine_);
    const double x = places_[column.begin].x;
    Row<kSide> ownOne;
    Row<kSide> ownY;
    for (std::size_t i = 0; i < kSide; ++i) {
        const double toMean = v.meanX[i] - x;
        const double fromColumn = v.x[i] - x;
        const double pairs = fromColumn * one[i] * yy[i];
        v.ofOne[i] -= pairs * toMean;
        v.ofAlong[i] -= pairs * (c - s * v.slope[i]);
        v.ofRest[i] += pairs * s;
        // Over the apexes, from the column.
        const double d = toMean * v.one[i];
        const double dd = v.xx[i] + toMean * d;
        const double dy = v.xy[i] + (v.meanY[i] - y[i]) * d;
        ownOne[i] = yy[i] * (dd - fromColumn * d);
        ownY[i] = one[i] * (dd * (v.y[i] - y[i]) - fromColumn * dy);
    }
    for (std::size_t point = column.begin; point < column.end; ++point) {
        Row<kSide> share;
        for (std::size_t i = 0; i < kSide; ++i) {
            share[i] = -seen[point].weight[i] * (ownOne[i] + ownY[i] * (places_[point].y - y[i]));
        }
        Add(sums, share, points[point]);
    }
}

template <std::size_t kSide>
PixelRows<kSide> Elimination::At(std::span<const ReferencePoint> points,
                                 std::span<const Column> columns, const Places<kSide>& positions,
                                 std::span<const SeenPoint<kSide>> seen) const
{
    View<kSide> v = ViewFrom<kSide>(positions, seen);
    PixelRows<kSide> sums;
    for (const Column& column : columns) {
        TakeOff<kSide>(points, column, seen, v, sums);
    }
    for (std::size_t point = 0; point < points.size(); ++point) {
        Row<kSide> share;
        for (std::size_t i = 0; i < kSide; ++i) {
            const double a = places_[point].along - v.along[i];
            const double b = places_[point].across - v.across[i] - v.slope[i] * a;
            share[i] = seen[point].weight[i] * (v.ofOne[i] + v.ofAlong[i] * a + v.ofRest[i] * b);
        }
        Add(sums, share, points[point]);
    }
    return sums;
}

template PixelRows<1> Elimination::At(std::span<const ReferencePoint>, std::span<const Column>,
                                      const Places<1>&, std::span<const SeenPoint<1>>) const;
template PixelRows<kManySides> Elimination::At(std::span<const ReferencePoint>,
                                               std::span<const Column>, const Places<kManySides>&,
                                               std::span<const SeenPoint<kManySides>>) const;

}  // namespace map
