// Whether a set of points spans a plane at all.

#pragma once

#include <span>

#include "map/blend/PlanePoint.h"

namespace map {

// A table of points none of whose triangles has a squared area of this part of its longest side's
// fourth power is a line but for rounding, and behaves like an empty one.
inline constexpr double kCollinear = 1e-12;

bool IsThin(PlanePoint a, PlanePoint b, PlanePoint c);

// Beyond kExactPoints only triangles with the two points that are (nearly) farthest from each other
// are looked at.
bool HasTriangle(std::span<const PlanePoint> points);

}  // namespace map
