// The map model over all triangles in 113-bit arithmetic: the judge where doubles disagree.
//
// Differences and products of coordinates come out exact or nearly so, so that a determinant is 0
// only where it is exactly 0. Each triangle's affine map is evaluated from areas, without the
// crossing point that makes the step-by-step form lose digits.

#pragma once

#include <span>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"

namespace map {

Pixel ExactToPixel(std::span<const ReferencePoint> points, geo::GeoPosition position);
geo::GeoPosition ExactToGeo(std::span<const ReferencePoint> points, Pixel pixel);

}  // namespace map
