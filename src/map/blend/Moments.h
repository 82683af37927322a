// The blend over all triangles without visiting any.
//
// With I = 1/distance² of a reference point from P and v = (1, x, y), the Cauchy-Binet identity
// says that the sum of I_i I_j I_k det(v_i, v_j, v_k)² over all triples is det(Σ I v vᵀ). As the
// squared area is det² / 4, the blend of the affine maps of all triangles is the affine map fitted
// by least squares with the weights I: a 3x3 system made of sums over single points.
//
// A value type V is a double or a pack of doubles (Lanes), each lane on its own.

#pragma once

namespace map {

// Closer than this, squared, a point counts as coincident, and its weight is 1e40: so no weight
// can overflow. Larger weights would not change the result.
inline constexpr double kCoincident = 1e-80;

template <typename V>
[[gnu::always_inline]] inline V GuardedSquare(const V& dx, const V& dy)
{
    const V distance2 = dx * dx + dy * dy;
    return distance2 < kCoincident ? V{} + 1e-40 : distance2;
}

template <typename V>
[[gnu::always_inline]] inline V PointWeight(const V& dx, const V& dy)
{
    return 1.0 / GuardedSquare(dx, dy);
}

// Where the places in the sums begin.
enum class Origin {
    AtP,
    AtMiddle,
};

// Where a point is evaluated: P itself, and P as seen from the origin of the sums. The origin is P
// for all points near the table, so that a point's distance and its place in the sums come from the
// same subtraction; for far ones it is the middle of the table, lest everything cancels.
template <typename V>
struct Viewpoint {
    V x;
    V y;
    V fromOriginX;
    V fromOriginY;
};

// Sums of I times the named product. x, y: place from the origin; u, v: pixel.
template <typename V>
struct Moments {
    V one{}, x{}, y{}, xx{}, xy{}, yy{}, u{}, v{}, xu{}, yu{}, xv{}, yv{};

    // Adds one reference point; its squared cosine of the direction from P, 0 for P itself.
    template <Origin origin>
    [[gnu::always_inline]] V Add(const Viewpoint<V>& p, const V& pointX, const V& pointY,
                                 const V& pointU, const V& pointV)
    {
        const V dx = pointX - p.x;
        const V dy = pointY - p.y;
        const V weight = PointWeight(dx, dy);
        const V placeX = origin == Origin::AtP ? dx : dx + p.fromOriginX;
        const V placeY = origin == Origin::AtP ? dy : dy + p.fromOriginY;
        // In an order that keeps few intermediate values at a time: with the sums they just fill
        // the registers.
        const V weightedU = weight * pointU;
        u += weightedU;
        xu += weightedU * placeX;
        yu += weightedU * placeY;
        const V weightedV = weight * pointV;
        v += weightedV;
        xv += weightedV * placeX;
        yv += weightedV * placeY;
        const V weightedY = weight * placeY;
        one += weight;
        y += weightedY;
        yy += weightedY * placeY;
        const V weightedX = weight * placeX;
        const V weightedXX = weightedX * placeX;
        x += weightedX;
        xy += weightedX * placeY;
        xx += weightedXX;
        return origin == Origin::AtP ? weightedXX : weight * dx * dx;
    }
};

// Weight of a set of rotations, and the weighted sums of the pixels that they give. The unit of
// the weight is I_i I_j I_k det², once per rotation.
template <typename V>
struct WeightedPixel {
    V weight{};
    V x{};
    V y{};
};

// Less of the determinant than this left by cancellation, and rounding in the sums could reach a
// millionth of a pixel.
inline constexpr double kLeastSpread = 1e-3;

// One rotation of every triangle. The margin is positive when the sum is exact enough; it is not
// when the points, as they are weighted, lie nearly in a line.
template <typename V>
struct Fit {
    WeightedPixel<V> sum;
    V margin;
};

template <typename V>
[[gnu::always_inline]] inline Fit<V> FitOf(const Moments<V>& m, const Viewpoint<V>& p)
{
    const V part = 1.0 / m.one;
    const V meanX = m.x * part;
    const V meanY = m.y * part;
    const V xx = m.xx - meanX * m.x;
    const V xy = m.xy - meanX * m.y;
    const V yy = m.yy - meanY * m.y;
    const V determinant = xx * yy - xy * xy;
    const V fromMeanX = m.one * (p.fromOriginX - meanX);
    const V fromMeanY = m.one * (p.fromOriginY - meanY);
    const V alongX = fromMeanX * yy - fromMeanY * xy;
    const V alongY = fromMeanY * xx - fromMeanX * xy;
    return {
        .sum =
            {
                .weight = m.one * determinant,
                .x = determinant * m.u + alongX * (m.xu - meanX * m.u)
                     + alongY * (m.yu - meanY * m.u),
                .y = determinant * m.v + alongX * (m.xv - meanX * m.v)
                     + alongY * (m.yv - meanY * m.v),
            },
        .margin = determinant - kLeastSpread * (xx * yy),
    };
}

// Sums over the apexes of a column's triangles of I times the named product; d: place from the
// column.
template <typename V>
struct ApexMoments {
    V dd{};
    V d{};
    V dy{};
    V du{};
    V dv{};
};

template <typename V>
[[gnu::always_inline]] inline ApexMoments<V> ApexesOf(const Moments<V>& m, const V& columnX)
{
    return {
        .dd = m.xx - columnX * (2.0 * m.x - columnX * m.one),
        .d = m.x - columnX * m.one,
        .dy = m.xy - columnX * m.y,
        .du = m.xu - columnX * m.u,
        .dv = m.xv - columnX * m.v,
    };
}

// Points of exactly equal longitude. A base between two of them is left out, whatever P is: one
// rotation of each triangle over such a base. These sum up in closed form too.
template <typename V>
struct ColumnMoments {
    V one{}, y{}, yy{}, u{}, v{}, yu{}, yv{};

    [[gnu::always_inline]] void Add(const V& weight, const V& placeY, const V& pointU,
                                    const V& pointV)
    {
        const V weightedY = weight * placeY;
        one += weight;
        y += weightedY;
        yy += weightedY * placeY;
        u += weight * pointU;
        v += weight * pointV;
        yu += weightedY * pointU;
        yv += weightedY * pointV;
    }

    // The rotations over the column's bases. `across` is P's place from the column, `p` its
    // place from the origin.
    [[gnu::always_inline]] WeightedPixel<V> Share(const ApexMoments<V>& apex, const V& across,
                                                  const V& p) const
    {
        // Over the pairs of the column, each weighted with I_a I_b (y_b - y_a)²: the pixel of
        // their line at y = 0 and its change with y.
        const V pairs = one * yy - y * y;
        const V u0 = yy * u - y * yu;
        const V u1 = one * yu - y * u;
        const V v0 = yy * v - y * yv;
        const V v1 = one * yv - y * v;
        return {
            .weight = pairs * apex.dd,
            .x = apex.dd * (u0 + p * u1) + across * (pairs * apex.du - u0 * apex.d - u1 * apex.dy),
            .y = apex.dd * (v0 + p * v1) + across * (pairs * apex.dv - v0 * apex.d - v1 * apex.dy),
        };
    }
};

}  // namespace map
