// How the drawing surface and its scroll bars share the map window.

#pragma once

#include "map/Georeference.h"

namespace plot {

// Whole surface units; one of them shows one pixel of the image.
using SurfaceSize = map::ImageSize;

inline constexpr int kRightStrip = 80;    // beside the surface: buttons, list and vertical bar
inline constexpr int kLowerStrip = 20;    // below the surface
inline constexpr int kBarThickness = 20;  // of a scroll bar
inline constexpr int kSmallestSurface = 20;

struct ViewLayout {
    SurfaceSize surface;
    bool horizontalBar = false;
    bool verticalBar = false;

    bool operator==(const ViewLayout&) const = default;
};

// The polar view fills the area that the strips leave, at least 20 x 20.
ViewLayout PolarLayout(SurfaceSize inner);

// The map view: a dimension in which the image fits takes the image's size. A bar takes room from
// the other dimension, so that one bar can make the second one necessary.
ViewLayout ImageLayout(SurfaceSize inner, SurfaceSize image);

}  // namespace plot
