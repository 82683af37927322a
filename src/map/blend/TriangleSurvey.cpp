#include "map/blend/TriangleSurvey.h"

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
                       [a, b](PlanePoint c) { return ShapeOf(a, b, c).collinear; });
}

}  // namespace

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
    double greatest2 = 0.0;
    ForEachTriangle(points, [&](const Triangle& t, const Shape& shape) {
        const double cross2 = shape.cross * shape.cross;
        const double side4 = shape.longest2 * shape.longest2;
        if (!shape.collinear) {
            ++survey.usable;
            survey.used[t.i] = survey.used[t.j] = survey.used[t.k] = true;
            if (cross2 > greatest2 * side4) {
                greatest2 = cross2 / side4;
            }
        } else if (shape.cross != 0.0) {
            flat.push_back({.triangle = t, .height = std::sqrt(cross2 / side4)});
        }
    });
    for (const auto& [t, height] : flat) {
        if (height > kNegligibleHeight * greatest2 && survey.used[t.i] && survey.used[t.j]
            && survey.used[t.k]) {
            survey.collinear.push_back(t);
        }
    }
    return survey;
}

}  // namespace map
