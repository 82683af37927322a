#include "plot/PlotPosition.h"

#include <cmath>
#include <cstdlib>

#include "base/Rounding.h"
#include "geo/Distance.h"

namespace plot {

namespace {

constexpr double kPlotLimit = 65000.0;

// The plot has always been computed with these ten digits of pi.
constexpr double kPlotRadiansPerDegree = 3.141592654 / 180.0;

// RoundHalfEven by integers: 25000 stations are rounded twice for every frame.
std::optional<int> Whole(double value)
{
    if (!(value > -kPlotLimit && value < kPlotLimit)) {
        return std::nullopt;
    }
    const auto towardsZero = static_cast<int>(value);
    const double rest = value - towardsZero;
    // Sums of truths, not branches: which way a station is rounded cannot be foreseen.
    const int odd = towardsZero & 1;
    const int up = static_cast<int>(rest > 0.5) | (static_cast<int>(rest == 0.5) & odd);
    const int down = static_cast<int>(rest < -0.5) | (static_cast<int>(rest == -0.5) & odd);
    const int whole = towardsZero + up - down;
    return std::abs(whole) < kPlotLimit ? std::optional(whole) : std::nullopt;
}

}  // namespace

std::optional<SurfacePoint> WholePosition(double x, double y)
{
    const std::optional<int> wholeX = Whole(x);
    const std::optional<int> wholeY = Whole(y);
    if (!wholeX || !wholeY) {
        return std::nullopt;
    }
    return SurfacePoint{.x = *wholeX, .y = *wholeY};
}

PolarPosition PolarFrom(geo::GeoPosition station1, geo::GeoPosition position)
{
    const geo::DistanceAndBearing seen = geo::DistanceAndRawBearing(station1, position);
    const double bearing = seen.rawBearing * kPlotRadiansPerDegree;
    return {.distance = seen.distance, .cosine = std::cos(bearing), .sine = std::sin(bearing)};
}

map::Pixel PolarOffset(const PolarPosition& position, double scale)
{
    const double radius = position.distance * scale;
    return {.x = radius * position.cosine, .y = radius * position.sine};
}

double PolarUnitsPerKilometre(SurfaceSize surface, float viewRange)
{
    return surface.height / 2.0 / static_cast<double>(viewRange);
}

SurfacePoint AtCentre(SurfaceSize surface, SurfacePoint offset)
{
    return {
        .x = static_cast<int>(base::RoundHalfEven(surface.width / 2.0 + offset.x)),
        .y = static_cast<int>(base::RoundHalfEven(surface.height / 2.0 + offset.y)),
    };
}

map::Pixel InterpolatedPixel(const map::EdgeCoordinates& edges, map::ImageSize image,
                             geo::GeoPosition position)
{
    return {
        .x = (position.longitude - edges.left) * image.width / (edges.right - edges.left),
        .y = (edges.upper - position.latitude) * image.height / (edges.upper - edges.lower),
    };
}

geo::GeoPosition InterpolatedPosition(const map::EdgeCoordinates& edges, map::ImageSize image,
                                      map::Pixel pixel)
{
    return {
        .latitude = edges.upper + (edges.lower - edges.upper) * pixel.y / image.height,
        .longitude = edges.left + (edges.right - edges.left) * pixel.x / image.width,
    };
}

}  // namespace plot
