// The small sums under the map model. Their guard values are part of its results.

#pragma once

#include <algorithm>
#include <cmath>

namespace map {

// a / b; a divisor of exactly 0 counts as 1e-40.
inline double SafeDivide(double a, double b)
{
    return a / (b == 0.0 ? 1e-40 : b);
}

// 1 / (dx² + dy²), the weight of a point at that distance: 1e40 for a coincident one.
inline double InverseSquare(double dx, double dy)
{
    return SafeDivide(1.0, dx * dx + dy * dy);
}

inline double Hypot(double dx, double dy)
{
    return std::sqrt(dx * dx + dy * dy);
}

inline double Abs(double x)
{
    return x < 0.0 ? -x : x;
}

// Squared area by Heron's formula without its root. Rounding makes that of a very thin triangle
// wrong by up to 1e-15 times the fourth power of its longest side, below zero too.
inline double TriangleAreaSquared(double ax, double ay, double bx, double by, double cx, double cy)
{
    const double a = Hypot(bx - cx, by - cy);
    const double b = Hypot(ax - cx, ay - cy);
    const double c = Hypot(ax - bx, ay - by);
    const double s = (a + b + c) / 2.0;
    return s * (s - a) * (s - b) * (s - c);
}

// A squared area below this part of the longest side's fourth power counts as zero: the points
// are collinear but for rounding, and their affine map would throw stations off the map.
inline constexpr double kCollinear = 1e-12;

// TriangleAreaSquared, 0 for collinear corners.
inline double UsableAreaSquared(double ax, double ay, double bx, double by, double cx, double cy)
{
    const double areaSquared = TriangleAreaSquared(ax, ay, bx, by, cx, cy);
    const double a2 = (bx - cx) * (bx - cx) + (by - cy) * (by - cy);
    const double b2 = (ax - cx) * (ax - cx) + (ay - cy) * (ay - cy);
    const double c2 = (ax - bx) * (ax - bx) + (ay - by) * (ay - by);
    const double longest2 = std::max({a2, b2, c2});
    return areaSquared < kCollinear * longest2 * longest2 ? 0.0 : areaSquared;
}

}  // namespace map
