// The 33 zoom levels of the polar view.

#pragma once

#include <cstdint>

namespace plot {

inline constexpr std::int16_t kNearestZoom = 1;
inline constexpr std::int16_t kFarthestZoom = 33;

struct ZoomScale {
    int viewRange;    // metres from the centre to the upper and lower edges of the surface
    int ringSpacing;  // metres between two range rings

    float ViewRange() const { return static_cast<float>(viewRange) / 1000.0F; }  // km

    // Rings up to and including 1.8 times the view range, so that they fill the corners of a wide
    // surface.
    int RingCount() const { return viewRange / 5 * 9 / ringSpacing; }
};

// Scale of a zoom level. A level that does not exist has the scale of level 14.
ZoomScale ComputeScale(int zoomLevel);

// One level nearer or farther; the first and the last level stay.
std::int16_t ZoomedIn(std::int16_t zoomLevel);
std::int16_t ZoomedOut(std::int16_t zoomLevel);

}  // namespace plot
