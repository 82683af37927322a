#include "map/ForwardSums.h"

namespace map {

namespace {

// The inner loops exist twice, the faster for processors with four doubles to a register. Both do
// the same arithmetic in the same order.
#if defined(__x86_64__)
#define KOMPASSO_WIDE __attribute__((target_clones("avx2", "default")))
#else
#define KOMPASSO_WIDE
#endif

[[gnu::always_inline]] inline Lanes Load(const double* values)
{
    return Lanes{values[0], values[1], values[2], values[3]};
}

[[gnu::always_inline]] inline Lanes Broadcast(double value)
{
    return Lanes{value, value, value, value};
}

[[gnu::always_inline]] inline double SumOf(const Lanes& v)
{
    return (v[0] + v[2]) + (v[1] + v[3]);
}

[[gnu::always_inline]] inline Moments<double> SumOf(const Moments<Lanes>& m)
{
    return {SumOf(m.one), SumOf(m.x), SumOf(m.y),  SumOf(m.xx), SumOf(m.xy), SumOf(m.yy),
            SumOf(m.u),   SumOf(m.v), SumOf(m.xu), SumOf(m.yu), SumOf(m.xv), SumOf(m.yv)};
}

// Which of a pack of directions a base may have.
struct LanesPossible {
    std::array<std::uint32_t, kLanes> lane;  // 0 or 1
    bool any;
};

[[gnu::always_inline]] inline LanesPossible PossibleIn(const DirectionFilter& filter,
                                                       const Lanes& cosine2)
{
    const LaneIndices index =
        __builtin_convertvector(cosine2 * DirectionFilter::kScale, LaneIndices);
    LanesPossible possible = {
        {filter.Bit(index[0]), filter.Bit(index[1]), filter.Bit(index[2]), filter.Bit(index[3])},
        false};
    possible.any = (possible.lane[0] | possible.lane[1] | possible.lane[2] | possible.lane[3]) != 0;
    return possible;
}

// Three times `sum` without what the columns' bases contribute to it once.
template <typename V, typename Spread>
[[gnu::always_inline]] inline WeightedPixel<V>
LessColumns(WeightedPixel<V> sum, const PointArrays& points, std::span<const Column> columns,
            const Moments<V>& all, const Viewpoint<V>& p, Spread spread)
{
    sum.weight *= 3.0;
    sum.x *= 3.0;
    sum.y *= 3.0;
    for (const Column& column : columns) {
        ColumnMoments<V> moments;
        V x{};
        for (std::size_t i = column.begin; i < column.end; ++i) {
            const V dx = spread(points.longitude[i]) - p.x;
            const V dy = spread(points.latitude[i]) - p.y;
            x = dx + p.fromOriginX;
            moments.Add(PointWeight(dx, dy), dy + p.fromOriginY, spread(points.x[i]),
                        spread(points.y[i]));
        }
        const WeightedPixel<V> share =
            moments.Share(ApexesOf(all, x), p.fromOriginX - x, p.fromOriginY);
        sum.weight -= share.weight;
        sum.x -= share.x;
        sum.y -= share.y;
    }
    return sum;
}

}  // namespace

KOMPASSO_WIDE PointSums SumPoints(const PointArrays& points, const ParallelBases& bases,
                                  const Viewpoint<double>& p)
{
    const PointArrays from = points;
    const DirectionFilter filter = bases.Filter();
    const Viewpoint<Lanes> view = {Broadcast(p.x), Broadcast(p.y), Broadcast(p.fromOriginX),
                                   Broadcast(p.fromOriginY)};
    Moments<Lanes> moments;
    PointSums sums;
    sums.count = 0;
    for (std::size_t i = 0; i < from.filled; i += kLanes) {
        const Lanes cosine2 = moments.Add(view, Load(from.longitude + i), Load(from.latitude + i),
                                          Load(from.x + i), Load(from.y + i));
        const LanesPossible possible = PossibleIn(filter, cosine2);
        if (possible.any) {
            for (std::size_t lane = 0; lane < kLanes; ++lane) {
                sums.inLine[sums.count] = static_cast<std::uint16_t>(i + lane);
                sums.count += possible.lane[lane];
            }
        }
    }
    sums.moments = SumOf(moments);
    return sums;
}

KOMPASSO_WIDE LaneFlags FitPlaces(const PointArrays& points, const ParallelBases& bases,
                                  std::span<const Column> columns, const Viewpoint<Lanes>& place,
                                  std::span<Pixel, kLanes> pixels)
{
    const PointArrays from = points;
    const DirectionFilter filter = bases.Filter();
    const Viewpoint<Lanes> p = place;
    Moments<Lanes> moments;
    LaneFlags inLine{};
    for (std::size_t i = 0; i < from.size; ++i) {
        const Lanes cosine2 =
            moments.Add(p, Broadcast(from.longitude[i]), Broadcast(from.latitude[i]),
                        Broadcast(from.x[i]), Broadcast(from.y[i]));
        const LanesPossible possible = PossibleIn(filter, cosine2);
        if (possible.any) {
            for (std::size_t lane = 0; lane < kLanes; ++lane) {
                if (possible.lane[lane] != 0
                    && bases.HasNear(place.x[lane] - from.longitude[i],
                                     place.y[lane] - from.latitude[i])) {
                    inLine[lane] = true;
                }
            }
        }
    }
    const Fit<Lanes> fit = FitOf(moments, p);
    const WeightedPixel<Lanes> sum = LessColumns(fit.sum, points, columns, moments, p, Broadcast);
    const Lanes x = sum.x / sum.weight;
    const Lanes y = sum.y / sum.weight;
    LaneFlags done{};
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
        pixels[lane] = {.x = x[lane], .y = y[lane]};
        done[lane] = fit.spread[lane] > kLeastSpread && !inLine[lane];
    }
    return done;
}

WeightedPixel<double> WithoutColumns(const WeightedPixel<double>& once, const PointArrays& points,
                                     std::span<const Column> columns,
                                     const Moments<double>& moments, const Viewpoint<double>& p)
{
    return LessColumns(once, points, columns, moments, p, [](double value) { return value; });
}

}  // namespace map
