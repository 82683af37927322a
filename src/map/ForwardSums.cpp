#include "map/ForwardSums.h"

namespace map {

namespace {

static_assert(PackedColumns::kSide == kLanes);

[[gnu::always_inline]] inline Moments<double> TotalOf(const Moments<Lanes>& m)
{
    return {SumOf(m.one), SumOf(m.x), SumOf(m.y),  SumOf(m.xx), SumOf(m.xy), SumOf(m.yy),
            SumOf(m.u),   SumOf(m.v), SumOf(m.xu), SumOf(m.yu), SumOf(m.xv), SumOf(m.yv)};
}

// Which directions of a pack a base may have.
struct PackFilter {
    LaneIndices step;
    std::uint32_t any;

    [[gnu::always_inline]] PackFilter(const DirectionFilter& filter, const Lanes& cosine2)
        : step(__builtin_convertvector(cosine2 * DirectionFilter::kScale, LaneIndices)),
          any(filter.Perhaps(step[0]) | filter.Perhaps(step[1]) | filter.Perhaps(step[2])
              | filter.Perhaps(step[3]))
    {
    }
};

// SumPoints from an origin known before.
template <Origin origin>
[[gnu::always_inline]] inline void AddPoints(PointSums& sums, const PointArrays& from,
                                             const DirectionFilter& filter,
                                             const Viewpoint<double>& p)
{
    const Viewpoint<Lanes> view = {Broadcast(p.x), Broadcast(p.y), Broadcast(p.fromOriginX),
                                   Broadcast(p.fromOriginY)};
    Moments<Lanes> moments;
    for (std::size_t i = 0; i < from.filled; i += kLanes) {
        const Lanes cosine2 =
            moments.Add<origin>(view, Load(from.longitude + i), Load(from.latitude + i),
                                Load(from.x + i), Load(from.y + i));
        const PackFilter pack(filter, cosine2);
        for (std::size_t lane = 0; pack.any != 0 && lane < kLanes; ++lane) {
            if (filter.Possible(pack.step[lane])) {
                sums.inLine[sums.count++] = static_cast<std::uint16_t>(i + lane);
            }
        }
    }
    sums.moments = TotalOf(moments);
}

struct LaneSums {
    Moments<Lanes> moments;
    LaneFlags inLine;  // whether a point is seen along a base, but for rounding
};

template <Origin origin>
[[gnu::always_inline]] inline void AddPoints(LaneSums& sums, const PointArrays& from,
                                             const ParallelBases& bases, const Viewpoint<Lanes>& p)
{
    const DirectionFilter filter = bases.Filter();
    Moments<Lanes> moments;
    for (std::size_t i = 0; i < from.size; ++i) {
        const Lanes cosine2 =
            moments.Add<origin>(p, Broadcast(from.longitude[i]), Broadcast(from.latitude[i]),
                                Broadcast(from.x[i]), Broadcast(from.y[i]));
        const PackFilter pack(filter, cosine2);
        for (std::size_t lane = 0; pack.any != 0 && lane < kLanes; ++lane) {
            if (filter.Possible(pack.step[lane])
                && bases.HasNear(p.x[lane] - from.longitude[i], p.y[lane] - from.latitude[i])) {
                sums.inLine[lane] = true;
            }
        }
    }
    sums.moments = moments;
}

[[gnu::always_inline]] inline bool IsZero(const Lanes& v)
{
    return v[0] == 0.0 && v[1] == 0.0 && v[2] == 0.0 && v[3] == 0.0;
}

[[gnu::always_inline]] inline Moments<Lanes> SpreadOf(const Moments<double>& m)
{
    return {Broadcast(m.one), Broadcast(m.x),  Broadcast(m.y),  Broadcast(m.xx),
            Broadcast(m.xy),  Broadcast(m.yy), Broadcast(m.u),  Broadcast(m.v),
            Broadcast(m.xu),  Broadcast(m.yu), Broadcast(m.xv), Broadcast(m.yv)};
}

// WithoutColumns for a pack of positions.
[[gnu::always_inline]] inline WeightedPixel<Lanes>
LessColumns(WeightedPixel<Lanes> sum, const PointArrays& points, std::span<const Column> columns,
            const Moments<Lanes>& all, const Viewpoint<Lanes>& p)
{
    sum.weight *= 3.0;
    sum.x *= 3.0;
    sum.y *= 3.0;
    for (const Column& column : columns) {
        ColumnMoments<Lanes> moments;
        const Lanes dx = points.longitude[column.begin] - p.x;
        for (std::size_t i = column.begin; i < column.end; ++i) {
            const Lanes dy = points.latitude[i] - p.y;
            moments.Add(PointWeight(dx, dy), dy + p.fromOriginY, Broadcast(points.x[i]),
                        Broadcast(points.y[i]));
        }
        const Lanes x = dx + p.fromOriginX;
        const WeightedPixel<Lanes> share =
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
    PointSums sums;
    sums.count = 0;
    if (p.fromOriginX == 0.0 && p.fromOriginY == 0.0) {
        AddPoints<Origin::AtP>(sums, points, bases.Filter(), p);
    } else {
        AddPoints<Origin::AtMiddle>(sums, points, bases.Filter(), p);
    }
    return sums;
}

KOMPASSO_WIDE LaneFlags FitPlaces(const PointArrays& points, const ParallelBases& bases,
                                  std::span<const Column> columns, const Viewpoint<Lanes>& p,
                                  std::span<Pixel, kLanes> pixels)
{
    LaneSums sums = {};
    if (IsZero(p.fromOriginX) && IsZero(p.fromOriginY)) {
        AddPoints<Origin::AtP>(sums, points, bases, p);
    } else {
        AddPoints<Origin::AtMiddle>(sums, points, bases, p);
    }
    const Fit<Lanes> fit = FitOf(sums.moments, p);
    const WeightedPixel<Lanes> sum = LessColumns(fit.sum, points, columns, sums.moments, p);
    const Lanes x = sum.x / sum.weight;
    const Lanes y = sum.y / sum.weight;
    LaneFlags done{};
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
        pixels[lane] = {.x = x[lane], .y = y[lane]};
        done[lane] = fit.margin[lane] > 0.0 && !sums.inLine[lane];
    }
    return done;
}

KOMPASSO_WIDE WeightedPixel<double> WithoutColumns(const WeightedPixel<double>& once,
                                                   std::span<const PackedColumns> columns,
                                                   const Moments<double>& moments,
                                                   const Viewpoint<double>& p)
{
    WeightedPixel<double> sum = {3.0 * once.weight, 3.0 * once.x, 3.0 * once.y};
    const Lanes fromOriginX = Broadcast(p.fromOriginX);
    const Lanes fromOriginY = Broadcast(p.fromOriginY);
    for (const PackedColumns& pack : columns) {
        ColumnMoments<Lanes> column;
        for (const PackedColumns::Row& row : pack.rows) {
            const Lanes dy = Load(row.latitude.data()) - p.y;
            const Lanes weight = PointWeight(Load(row.longitude.data()) - p.x, dy);
            column.Add(weight, dy + fromOriginY, Load(row.x.data()), Load(row.y.data()));
        }
        const Lanes x = (Load(pack.rows.front().longitude.data()) - p.x) + fromOriginX;
        const ApexMoments<Lanes> apexes = ApexesOf(SpreadOf(moments), x);
        const WeightedPixel<Lanes> share = column.Share(apexes, fromOriginX - x, fromOriginY);
        sum.weight -= SumOf(share.weight);
        sum.x -= SumOf(share.x);
        sum.y -= SumOf(share.y);
    }
    return sum;
}

}  // namespace map
