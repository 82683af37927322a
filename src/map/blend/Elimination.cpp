#include "map/blend/Elimination.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace map {

namespace {

using Extended = long double;

// A reference point as seen from P, with its weight.
struct Seen {
    Extended weight;
    Extended x;
    Extended y;
    Extended u;
    Extended v;
};

using ExtendedPixel = WeightedPixel<Extended>;

std::vector<Seen> SeenFrom(PlanePoint p, std::span<const ReferencePoint> points)
{
    std::vector<Seen> seen;
    seen.reserve(points.size());
    for (const ReferencePoint& point : points) {
        const Extended x = static_cast<Extended>(point.Longitude) - p.x;
        const Extended y = static_cast<Extended>(point.Latitude) - p.y;
        seen.push_back({PointWeight(x, y), x, y, point.X, point.Y});
    }
    return seen;
}

// One rotation of every triangle: a weighted fit of u and v, first along the coordinate with more
// spread (`a`), then along what is left of the other (`b`).
ExtendedPixel Fitted(std::vector<Seen> seen)
{
    Seen mean = {};
    for (const Seen& s : seen) {
        mean.weight += s.weight;
        mean.x += s.weight * s.x;
        mean.y += s.weight * s.y;
        mean.u += s.weight * s.u;
        mean.v += s.weight * s.v;
    }
    for (Extended* const sum : {&mean.x, &mean.y, &mean.u, &mean.v}) {
        *sum /= mean.weight;
    }
    Extended xx = 0;
    Extended yy = 0;
    for (Seen& s : seen) {
        s = {s.weight, s.x - mean.x, s.y - mean.y, s.u - mean.u, s.v - mean.v};
        xx += s.weight * s.x * s.x;
        yy += s.weight * s.y * s.y;
    }
    const auto a = xx > yy ? &Seen::x : &Seen::y;
    const auto b = xx > yy ? &Seen::y : &Seen::x;
    const Extended aa = xx > yy ? xx : yy;

    Extended ab = 0;
    Extended au = 0;
    Extended av = 0;
    for (const Seen& s : seen) {
        ab += s.weight * s.*a * s.*b;
        au += s.weight * s.*a * s.u;
        av += s.weight * s.*a * s.v;
    }
    Extended bb = 0;
    Extended bu = 0;
    Extended bv = 0;
    for (const Seen& s : seen) {
        const Extended rest = s.*b - ab / aa * s.*a;
        bb += s.weight * rest * rest;
        bu += s.weight * rest * (s.u - au / aa * s.*a);
        bv += s.weight * rest * (s.v - av / aa * s.*a);
    }
    // P is at 0/0 of the places, at minus the mean of the centred ones.
    const Extended alongA = -(mean.*a);
    const Extended alongB = -(mean.*b) - ab / aa * alongA;
    const Extended weight = mean.weight * aa * bb;
    const Extended u = mean.u + alongA * au / aa + alongB * bu / bb;
    const Extended v = mean.v + alongA * av / aa + alongB * bv / bb;
    return {weight, weight * u, weight * v};
}

// The rotations over the bases of one column: of each pair with each apex.
ExtendedPixel ColumnRotations(std::span<const Seen> seen, const Column& column)
{
    ColumnMoments<Extended> c;
    for (const Seen& s : seen.subspan(column.begin, column.end - column.begin)) {
        c.Add(s.weight, s.y, s.u, s.v);
    }
    const Extended x = seen[column.begin].x;
    Extended dd = 0;
    Extended d = 0;
    Extended dy = 0;
    Extended du = 0;
    Extended dv = 0;
    for (const Seen& s : seen) {
        const Extended distance = s.x - x;
        dd += s.weight * distance * distance;
        d += s.weight * distance;
        dy += s.weight * distance * s.y;
        du += s.weight * distance * s.u;
        dv += s.weight * distance * s.v;
    }
    return c.Share({dd, d, dy, du, dv}, -x, Extended{0});
}

}  // namespace

WeightedPixel<double> BlendByElimination(std::span<const ReferencePoint> points,
                                         std::span<const Column> columns, PlanePoint p)
{
    const std::vector<Seen> seen = SeenFrom(p, points);
    ExtendedPixel sum = Fitted(seen);
    sum.weight *= 3;
    sum.x *= 3;
    sum.y *= 3;
    for (const Column& column : columns) {
        const ExtendedPixel share = ColumnRotations(seen, column);
        sum.weight -= share.weight;
        sum.x -= share.x;
        sum.y -= share.y;
    }
    return {static_cast<double>(sum.weight), static_cast<double>(sum.x),
            static_cast<double>(sum.y)};
}

}  // namespace map
