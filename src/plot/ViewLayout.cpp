#include "plot/ViewLayout.h"

#include <algorithm>

namespace plot {

namespace {

SurfaceSize AtLeastSmallest(SurfaceSize area)
{
    return {.width = std::max(area.width, kSmallestSurface),
            .height = std::max(area.height, kSmallestSurface)};
}

SurfaceSize Available(SurfaceSize inner)
{
    return AtLeastSmallest(
        {.width = inner.width - kRightStrip, .height = inner.height - kLowerStrip});
}

}  // namespace

ViewLayout PolarLayout(SurfaceSize inner)
{
    return {.surface = Available(inner)};
}

ViewLayout ImageLayout(SurfaceSize inner, SurfaceSize image)
{
    ViewLayout layout{.surface = Available(inner)};
    SurfaceSize& area = layout.surface;
    for (bool changed = true; changed;) {
        changed = false;
        if (image.width > area.width && !layout.horizontalBar) {
            layout.horizontalBar = true;
            area = AtLeastSmallest({.width = area.width, .height = area.height - kBarThickness});
            changed = true;
        }
        if (image.height > area.height && !layout.verticalBar) {
            layout.verticalBar = true;
            area = AtLeastSmallest({.width = area.width - kBarThickness, .height = area.height});
            changed = true;
        }
    }
    area.width = std::min(area.width, image.width);
    area.height = std::min(area.height, image.height);
    return layout;
}

}  // namespace plot
