#include "map/blend/BlendAgreement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iomanip>
#include <limits>
#include <optional>

#include "map/blend/ExactBlend.h"
#include "map/blend/ForwardBlend.h"
#include "map/blend/ForwardSums.h"
#include "map/blend/InverseBlend.h"
#include "map/blend/TriangleBlend.h"

namespace map {

namespace {

// Infinite when only one of the two is a number, so that no comparison passes by NaN.
double Apart(double a, double b)
{
    const double distance = std::fabs(a - b);
    return std::isnan(distance) ? std::numeric_limits<double>::infinity() : distance;
}

// Results are shown within the 16-bit range; two beyond it on the same side end at its limit.
double ShownApart(double a, double b)
{
    constexpr double kLimit = 32768.0;
    const bool equal = (a > kLimit && b > kLimit) || (a < -kLimit && b < -kLimit);
    return equal ? 0.0 : Apart(a, b);
}

double Apart(Pixel a, Pixel b)
{
    return std::max(ShownApart(a.x, b.x), ShownApart(a.y, b.y));
}

double Apart(geo::GeoPosition a, geo::GeoPosition b)
{
    return std::max(Apart(a.latitude, b.latitude), Apart(a.longitude, b.longitude));
}

template <typename Result, typename Exact>
testing::AssertionResult Agrees(Result prepared, Result literal, double bound, Exact exact)
{
    const double distance = Apart(prepared, literal);
    if (distance <= bound) {
        return testing::AssertionSuccess();
    }
    const Result judge = exact();
    if (Apart(literal, judge) > bound / 10.0 && Apart(prepared, judge) <= bound) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << "prepared off the step-by-step form by " << distance << ", off the exact result by "
           << Apart(prepared, judge) << ", the step-by-step form by " << Apart(literal, judge);
}

}  // namespace

testing::AssertionResult ForwardAgrees(std::span<const ReferencePoint> points,
                                       std::span<const geo::GeoPosition> positions)
{
    ForwardBlend blend;
    blend.Prepare(points);
    if (positions.empty()) {
        return testing::AssertionFailure() << "nothing to compare";
    }
    // Often enough to go side by side.
    std::vector<geo::GeoPosition> repeated;
    while (repeated.size() < positions.size() || repeated.size() < kManySides) {
        repeated.insert(repeated.end(), positions.begin(), positions.end());
    }
    std::vector<Pixel> many(repeated.size());
    blend.At(repeated, many);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const geo::GeoPosition position = positions[i];
        const Pixel literal = TriangleBlendToPixel(points, position);
        std::optional<Pixel> judged;  // once for both
        for (const Pixel prepared : {blend.At(position), many[i]}) {
            auto result = Agrees(prepared, literal, kPixelBound, [&] {
                judged = judged ? *judged : ExactToPixel(points, position);
                return *judged;
            });
            if (!result) {
                return result << std::setprecision(17) << " at " << position.latitude << '/'
                              << position.longitude << " with " << points.size() << " points";
            }
        }
    }
    return testing::AssertionSuccess();
}

testing::AssertionResult InverseAgrees(std::span<const ReferencePoint> points,
                                       std::span<const Pixel> pixels)
{
    InverseBlend blend;
    blend.Prepare(points);
    for (const Pixel pixel : pixels) {
        auto result = Agrees(blend.At(pixel), TriangleBlendToGeo(points, pixel), kDegreeBound,
                             [&] { return ExactToGeo(points, pixel); });
        if (!result) {
            return result << " at pixel " << pixel.x << '/' << pixel.y << " with " << points.size()
                          << " points";
        }
    }
    return testing::AssertionSuccess();
}

}  // namespace map
