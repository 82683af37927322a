#include "map/TriangleSurvey.h"

#include <algorithm>
#include <cmath>

namespace map {

namespace {

// The height of a triangle over its longest side, as a part of that side.
struct Flatness {
    Triangle triangle;
    double height;
};

// A collinear triangle's share of a result goes with the square of its height over that of the
// others, what it extrapolates with 1 / height. Below this part of the square of the greatest
// height the product is below a hundred-millionth of what one pixel's rounding does.
constexpr double kNegligibleHeight = 1e-10;

double DistanceSquared(PlanePoint a, PlanePoint b)
{
    return (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
}

double LongestSideSquared(PlanePoint a, PlanePoint b, PlanePoint c)
{
    return std::max({DistanceSquared(a, b), DistanceSquared(b, c), DistanceSquared(c, a)});
}

PlanePoint Farthest(std::span<const PlanePoint> points, PlanePoint from)
{
    return *std::max_element(points.begin(), points.end(), [from](PlanePoint a, PlanePoint b) {
        return DistanceSquared(from, a) < DistanceSquared(from, b);
    });
}

// Whether every point is collinear with the two (nearly) farthest from each other.
bool InLine(std::span<const PlanePoint> points)
{
    const PlanePoint a = Farthest(points, points.front());
    const PlanePoint b = Farthest(points, a);
    return std::all_of(points.begin(), points.end(),
                       [a, b](PlanePoint c) { return Collinear(a, b, c, Cross(a, b, c)); });
}

}  // namespace

bool Collinear(PlanePoint a, PlanePoint b, PlanePoint c, double cross)
{
    const double longest2 = LongestSideSquared(a, b, c);
    const double surelyNot = 64.0 * kCollinear * longest2 * longest2;
    return cross * cross < surelyNot && UsableAreaSquared(a.x, a.y, b.x, b.y, c.x, c.y) == 0.0;
}

TriangleSurvey SurveyTriangles(std::span<const PlanePoint> points)
{
    TriangleSurvey survey;
    if (points.size() > kExactPoints) {
        const bool any = !InLine(points);
        survey.usable = any ? points.size() : 0;
        survey.used.assign(points.size(), any);
        return survey;
    }
    survey.used.assign(points.size(), false);
    std::vector<Flatness> flat;
    double greatest = 0.0;
    ForEachTriangle(points, [&](const Triangle& t, double cross, bool collinear) {
        const double longest2 = LongestSideSquared(points[t.i], points[t.j], points[t.k]);
        if (!collinear) {
            ++survey.usable;
            survey.used[t.i] = survey.used[t.j] = survey.used[t.k] = true;
            greatest = std::max(greatest, std::fabs(cross) / longest2);
        } else if (cross != 0.0) {
            flat.push_back({.triangle = t, .height = std::fabs(cross) / longest2});
        }
    });
    for (const auto& [t, height] : flat) {
        if (height > kNegligibleHeight * greatest * greatest && survey.used[t.i] && survey.used[t.j]
            && survey.used[t.k]) {
            survey.collinear.push_back(t);
        }
    }
    return survey;
}

}  // namespace map
