#include "map/blend/ForwardSums.h"

#include <cstring>
#include <limits>

namespace map {

namespace {

static_assert(PointPack::kSide == kLanes);

// A position beyond the extent is summed from the middle of the table.
template <typename V>
[[gnu::always_inline]] inline Viewpoint<V> View(const Extent& extent, const V& x, const V& y)
{
    const V offX = x - extent.middle.x;
    const V offY = y - extent.middle.y;
    const auto isFar =
        (offX > extent.far) | (offX < -extent.far) | (offY > extent.far) | (offY < -extent.far);
    return {.x = x, .y = y, .fromOriginX = isFar ? offX : V{}, .fromOriginY = isFar ? offY : V{}};
}

[[gnu::always_inline]] inline LaneMask IsFinite(const Lanes& v)
{
    const Lanes most = Spread(std::numeric_limits<double>::max());
    return (v >= -most) & (v <= most);
}

// Coordinates beyond kFarthestPoint count as if they were there.
[[gnu::always_inline]] inline Lanes Clamped(const Lanes& v)
{
    const Lanes most = Spread(kFarthestPoint);
    return v > most ? most : (v < -most ? -most : v);
}

[[gnu::always_inline]] inline Moments<double> TotalOf(const Moments<Lanes>& m)
{
    return {SumOf(m.one), SumOf(m.x), SumOf(m.y),  SumOf(m.xx), SumOf(m.xy), SumOf(m.yy),
            SumOf(m.u),   SumOf(m.v), SumOf(m.xu), SumOf(m.yu), SumOf(m.xv), SumOf(m.yv)};
}

[[gnu::always_inline]] inline Moments<Lanes> SpreadOf(const Moments<double>& m)
{
    return {Spread(m.one), Spread(m.x), Spread(m.y),  Spread(m.xx), Spread(m.xy), Spread(m.yy),
            Spread(m.u),   Spread(m.v), Spread(m.xu), Spread(m.yu), Spread(m.xv), Spread(m.yv)};
}

// Whether a base may have one of four directions.
[[gnu::always_inline]] inline bool AnyPerhaps(const DirectionFilter& filter,
                                              const std::int32_t* step)
{
    const std::uint32_t any = filter.Perhaps(step[0]) | filter.Perhaps(step[1])
                              | filter.Perhaps(step[2]) | filter.Perhaps(step[3]);
    return (any & 1U) != 0;
}

// The directions in which the lanes of each pack are seen. Tables too large for this ring have no
// bases to look for.
struct Directions {
    static constexpr std::size_t kPacks = 256;
    static_assert(kPacks >= kExactPoints);

    std::array<std::int32_t, kPacks * kLanes> steps;

    [[gnu::always_inline]] void Put(std::size_t pack, const Lanes& cosine2)
    {
        const LaneIndices step =
            __builtin_convertvector(cosine2 * DirectionFilter::kScale, LaneIndices);
        std::memcpy(&steps[pack % kPacks * kLanes], &step, sizeof(step));
    }
};

// Sums over packs, lane by lane.
template <Origin origin>
[[gnu::always_inline]] inline Moments<Lanes>
SumPacks(Directions& directions, std::span<const PointPack> packs, const Viewpoint<Lanes>& p)
{
    Moments<Lanes> moments;
    for (std::size_t i = 0; i < packs.size(); ++i) {
        const PointPack& pack = packs[i];
        directions.Put(i, moments.Add<origin>(p, Load(pack.longitude), Load(pack.latitude),
                                              Load(pack.x), Load(pack.y)));
    }
    return moments;
}

[[gnu::always_inline]] inline Moments<Lanes>
SumPacks(Directions& directions, std::span<const PointPack> packs, const Viewpoint<Lanes>& p)
{
    return Any((p.fromOriginX != 0.0) | (p.fromOriginY != 0.0))
               ? SumPacks<Origin::AtMiddle>(directions, packs, p)
               : SumPacks<Origin::AtP>(directions, packs, p);
}

// Calls visit(pack, lane) for each direction that a base may have. Apart from the sums, because a
// call among them would drive them from the registers.
template <typename Visit>
[[gnu::always_inline]] inline void ForEachPossible(const Directions& directions,
                                                   const ParallelBases& bases, std::size_t packs,
                                                   Visit visit)
{
    if (bases.All().empty()) {
        return;
    }
    const DirectionFilter filter = bases.Filter();
    for (std::size_t i = 0; i < packs; ++i) {
        const std::int32_t* const step = &directions.steps[i * kLanes];
        if (!AnyPerhaps(filter, step)) {
            continue;
        }
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            if (filter.Possible(step[lane])) {
                visit(i, lane);
            }
        }
    }
}

// Three times `once`, which holds one rotation of each triangle, without the rotations over the
// bases of columns.
[[gnu::always_inline]] inline WeightedPixel<double>
WithoutColumns(const WeightedPixel<double>& once, std::span<const PackedColumns> columns,
               const Moments<double>& all, const Viewpoint<Lanes>& p)
{
    WeightedPixel<double> sum = {3.0 * once.weight, 3.0 * once.x, 3.0 * once.y};
    for (const PackedColumns& pack : columns) {
        ColumnMoments<Lanes> column;
        for (const PointPack& row : pack.rows) {
            const Lanes dy = Load(row.latitude) - p.y;
            column.Add(PointWeight<Lanes>(Load(row.longitude) - p.x, dy), dy + p.fromOriginY,
                       Load(row.x), Load(row.y));
        }
        const Lanes x = (Load(pack.rows.front().longitude) - p.x) + p.fromOriginX;
        const WeightedPixel<Lanes> share =
            column.Share(ApexesOf(SpreadOf(all), x), p.fromOriginX - x, p.fromOriginY);
        sum.weight -= SumOf(share.weight);
        sum.x -= SumOf(share.x);
        sum.y -= SumOf(share.y);
    }
    return sum;
}

// The same for a pack of positions.
[[gnu::always_inline]] inline WeightedPixel<Lanes> WithoutColumns(const WeightedPixel<Lanes>& once,
                                                                  std::span<const PointPack> points,
                                                                  std::span<const Column> columns,
                                                                  const Moments<Lanes>& all,
                                                                  const Viewpoint<Lanes>& p)
{
    WeightedPixel<Lanes> sum = {3.0 * once.weight, 3.0 * once.x, 3.0 * once.y};
    for (const Column& column : columns) {
        ColumnMoments<Lanes> moments;
        const Lanes dx = Load(points[column.begin].longitude) - p.x;
        for (std::size_t i = column.begin; i < column.end; ++i) {
            const Lanes dy = Load(points[i].latitude) - p.y;
            moments.Add(PointWeight(dx, dy), dy + p.fromOriginY, Load(points[i].x),
                        Load(points[i].y));
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

KOMPASSO_WIDE PointSums SumPoints(const PreparedPoints& table, PlanePoint p)
{
    const Viewpoint<double> one = View(table.extent, p.x, p.y);
    const Viewpoint<Lanes> view = {Spread(one.x), Spread(one.y), Spread(one.fromOriginX),
                                   Spread(one.fromOriginY)};
    Directions directions;
    const Moments<double> moments = TotalOf(SumPacks(directions, table.packs, view));
    const Fit<double> fit = FitOf(moments, one);
    PointSums result;
    result.sum = WithoutColumns(fit.sum, table.packedColumns, moments, view);
    result.exact = fit.margin > 0.0;
    result.count = 0;
    ForEachPossible(directions, table.bases, table.packs.size(),
                    [&](std::size_t pack, std::size_t lane) {
                        const std::size_t point = pack * kLanes + lane;
                        if (point < table.spread.size()) {  // no filler
                            result.inLine[result.count++] = static_cast<std::uint16_t>(point);
                        }
                    });
    return result;
}

KOMPASSO_WIDE PackOfPixels FitPlaces(const PreparedPoints& table,
                                     std::span<const geo::GeoPosition, kLanes> positions)
{
    Lanes x;
    Lanes y;
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
        x[lane] = positions[lane].longitude;
        y[lane] = positions[lane].latitude;
    }
    const LaneMask finite = IsFinite(x) & IsFinite(y);
    x = finite ? Clamped(x) : Lanes{};
    y = finite ? Clamped(y) : Lanes{};
    const Viewpoint<Lanes> view = View(table.extent, x, y);
    Directions directions;
    const Moments<Lanes> moments = SumPacks(directions, table.spread, view);
    const Fit<Lanes> fit = FitOf(moments, view);
    const WeightedPixel<Lanes> sum =
        WithoutColumns(fit.sum, table.spread, table.columns, moments, view);
    const Lanes pixelX = sum.x / sum.weight;
    const Lanes pixelY = sum.y / sum.weight;
    const LaneMask usable = finite & (fit.margin > 0.0) & (sum.weight != 0.0);
    PackOfPixels pack;
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
        pack.pixels[lane] = {.x = pixelX[lane], .y = pixelY[lane]};
        pack.done[lane] = usable[lane] != 0;
    }
    ForEachPossible(directions, table.bases, table.spread.size(),
                    [&](std::size_t point, std::size_t lane) {
                        const Lanes dx = x - Load(table.spread[point].longitude);
                        const Lanes dy = y - Load(table.spread[point].latitude);
                        if (table.bases.HasNear(dx[lane], dy[lane])) {
                            pack.done[lane] = false;
                        }
                    });
    return pack;
}

}  // namespace map
