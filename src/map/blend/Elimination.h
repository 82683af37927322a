// The sums of Moments again, for places from which the points nearly lie in a line.

#pragma once

#include <span>

#include "map/ReferencePoint.h"
#include "map/blend/ForwardSums.h"
#include "map/blend/Moments.h"
#include "map/blend/PlanePoint.h"

namespace map {

// All rotations over bases that are not vertical, seen from `p`. Extended precision, and sums of
// residuals instead of differences of sums: the error grows with the thinness of the point set, not
// with its square.
WeightedPixel<double> BlendByElimination(std::span<const ReferencePoint> points,
                                         std::span<const Column> columns, PlanePoint p);

}  // namespace map
