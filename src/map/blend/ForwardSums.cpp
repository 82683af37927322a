#include "map/blend/ForwardSums.h"

#include "map/blend/ParallelBases.h"
#include "map/blend/Weights.h"

namespace map {

namespace {

// A smaller part of the determinant left by cancellation, and rounding could reach a millionth of a
// pixel.
constexpr double kLeastSpread = 1e-3;

// Sums over the points of the weight times the named product of places from the position.
template <std::size_t kSide>
struct Moments {
    Row<kSide> one = {}, x = {}, y = {}, xx = {}, xy = {}, yy = {};
};

// The share of a point in the result, by its place from the position, is its weight times
// one + x dx + y dy.
template <std::size_t kSide>
struct Factors {
    Row<kSide> one = {}, x = {}, y = {};
};

template <std::size_t kSide>
void Add(PixelRows<kSide>& sums, const SeenPoint<kSide>& seen, const Factors<kSide>& factors,
         const Places<kSide>& places, const ReferencePoint& point)
{
    for (std::size_t i = 0; i < kSide; ++i) {
        const double share = seen.weight[i]
                             * (factors.one[i] + factors.x[i] * (point.Longitude - places.x[i])
                                + factors.y[i] * (point.Latitude - places.y[i]));
        sums.x[i] += share * point.X;
        sums.y[i] += share * point.Y;
    }
}

template <std::size_t kSide>
Moments<kSide> SeeAndSum(std::span<const ReferencePoint> points, const Places<kSide>& places,
                         std::span<SeenPoint<kSide>> seen)
{
    const Places<kSide> p = places;
    Moments<kSide> m;
    for (std::size_t point = 0; point < points.size(); ++point) {
        const double pointX = points[point].Longitude;
        const double pointY = points[point].Latitude;
        SeenPoint<kSide>& s = seen[point];
        for (std::size_t i = 0; i < kSide; ++i) {
            const double dx = pointX - p.x[i];
            const double dy = pointY - p.y[i];
            const double weight = PointWeight(dx, dy);
            const double x = weight * dx;
            const double y = weight * dy;
            const double xx = x * dx;
            m.one[i] += weight;
            m.x[i] += x;
            m.y[i] += y;
            m.xx[i] += xx;
            m.xy[i] += x * dy;
            m.yy[i] += y * dy;
            s.weight[i] = weight;
            s.step[i] = static_cast<std::int32_t>(xx * DirectionFilter::kScale);
        }
    }
    return m;
}

// Takes off the rotations over the bases of one column: from `factors` what concerns any apex, from
// `sums` what concerns the points of the column.
template <std::size_t kSide>
void TakeOff(std::span<const ReferencePoint> column, std::span<const SeenPoint<kSide>> seen,
             const Places<kSide>& places, const Moments<kSide>& m, Factors<kSide>& factors,
             PixelRows<kSide>& sums)
{
    Row<kSide> one = {};
    Row<kSide> y = {};
    Row<kSide> yy = {};
    for (std::size_t point = 0; point < column.size(); ++point) {
        for (std::size_t i = 0; i < kSide; ++i) {
            one[i] += seen[point].weight[i];
            const double dy = column[point].Latitude - places.y[i];
            y[i] += seen[point].weight[i] * dy;
            yy[i] += seen[point].weight[i] * dy * dy;
        }
    }
    Factors<kSide> own;
    for (std::size_t i = 0; i < kSide; ++i) {
        const double x = column.front().Longitude - places.x[i];
        const double pairs = one[i] * yy[i] - y[i] * y[i];
        factors.one[i] -= pairs * x * x;
        factors.x[i] += pairs * x;
        // Over the apexes.
        const double dx = m.xx[i] - x * m.x[i];
        const double dy = m.xy[i] - x * m.y[i];
        sums.weight[i] -= pairs * (dx - x * (m.x[i] - x * m.one[i]));
        own.one[i] = x * y[i] * dy - yy[i] * dx;
        own.y[i] = y[i] * dx - x * one[i] * dy;
    }
    for (std::size_t point = 0; point < column.size(); ++point) {
        Add(sums, seen[point], own, places, column[point]);
    }
}

}  // namespace

template <std::size_t kSide>
void See(std::span<const ReferencePoint> points, const Places<kSide>& places,
         std::span<SeenPoint<kSide>> seen)
{
    const Places<kSide> p = places;
    for (std::size_t point = 0; point < points.size(); ++point) {
        const ReferencePoint from = points[point];
        for (std::size_t i = 0; i < kSide; ++i) {
            const double dx = from.Longitude - p.x[i];
            const double weight = PointWeight(dx, from.Latitude - p.y[i]);
            seen[point].weight[i] = weight;
            seen[point].step[i] =
                static_cast<std::int32_t>(weight * dx * dx * DirectionFilter::kScale);
        }
    }
}

template <std::size_t kSide>
ForwardSums<kSide> SumUp(std::span<const ReferencePoint> points, std::span<const Column> columns,
                         const Places<kSide>& places, std::span<SeenPoint<kSide>> seen)
{
    const Moments<kSide> m = SeeAndSum(points, places, seen);
    ForwardSums<kSide> result;
    Factors<kSide> factors;
    PixelRows<kSide>& sums = result.sum;
    for (std::size_t i = 0; i < kSide; ++i) {
        const double one = m.xx[i] * m.yy[i] - m.xy[i] * m.xy[i];
        const double x = m.y[i] * m.xy[i] - m.x[i] * m.yy[i];
        const double y = m.x[i] * m.xy[i] - m.y[i] * m.xx[i];
        const double determinant = one * m.one[i] + x * m.x[i] + y * m.y[i];
        result.exact[i] = determinant > kLeastSpread * (m.one[i] * m.xx[i] * m.yy[i]);
        sums.weight[i] = 3.0 * determinant;
        factors.one[i] = 3.0 * one;
        factors.x[i] = 3.0 * x;
        factors.y[i] = 3.0 * y;
    }
    for (const Column& column : columns) {
        const std::size_t length = column.end - column.begin;
        TakeOff<kSide>(points.subspan(column.begin, length), seen.subspan(column.begin, length),
                       places, m, factors, sums);
    }
    for (std::size_t point = 0; point < points.size(); ++point) {
        Add(sums, seen[point], factors, places, points[point]);
    }
    return result;
}

template void See(std::span<const ReferencePoint>, const Places<1>&, std::span<SeenPoint<1>>);
template void See(std::span<const ReferencePoint>, const Places<kManySides>&,
                  std::span<SeenPoint<kManySides>>);
template ForwardSums<1> SumUp(std::span<const ReferencePoint>, std::span<const Column>,
                              const Places<1>&, std::span<SeenPoint<1>>);
template ForwardSums<kManySides> SumUp(std::span<const ReferencePoint>, std::span<const Column>,
                                       const Places<kManySides>&, std::span<SeenPoint<kManySides>>);

}  // namespace map
