#include "plot/PolarScale.h"

#include <cmath>

#include "base/Rounding.h"
#include "geo/Radians.h"

namespace plot {

namespace {

constexpr int kSmallestKilometreSpacing = 900;  // m

int Whole(double value)
{
    return base::Saturate<int>(base::RoundHalfEven(value));
}

std::vector<Line> Radials(SurfaceSize surface)
{
    const double width = surface.width;
    const double height = surface.height;
    const double cx = width / 2.0;
    const double cy = height / 2.0;
    std::vector<Line> lines;
    for (int angle = 0; angle <= 80; angle += 10) {
        const double dx = cy * std::tan(angle * geo::kRadiansPerDegree);
        const double left = base::RoundHalfEven(cx - dx);
        const double right = base::RoundHalfEven(cx + dx);
        lines.push_back({.from = {left, height}, .to = {right, 0.0}});
        lines.push_back({.from = {right, height}, .to = {left, 0.0}});
    }
    const double middle = base::RoundHalfEven(cy);
    lines.push_back({.from = {0.0, middle}, .to = {width, middle}});
    return lines;
}

}  // namespace

PolarScale MakePolarScale(SurfaceSize surface, int zoomLevel, const base::NumberFormat& format)
{
    const ZoomScale scale = ComputeScale(zoomLevel);
    const double cy = surface.height / 2.0;
    PolarScale result{
        .centre = {Whole(surface.width / 2.0), Whole(cy)},
        .radials = Radials(surface),
        .rings = {},
    };
    const bool kilometres = scale.ringSpacing >= kSmallestKilometreSpacing;
    for (int ring = 1; ring <= scale.RingCount(); ++ring) {
        const double metres = static_cast<double>(scale.ringSpacing) * ring;
        result.rings.push_back({
            .radius = Whole(metres * cy / scale.viewRange),
            .label = kilometres ? format(metres / 1000.0, "# km") : format(metres, "# m"),
        });
    }
    return result;
}

}  // namespace plot
