// The map model step by step: the weighted blend of the affine maps of all triangles that three
// reference points form.
//
// Each triangle is used three times, once with every side as the base: the line from the apex C
// through P meets the base AB in Q; the map is interpolated along AB, then along CQ. All three give
// the triangle's affine map at P, inside and outside of it; they differ in what is left out: a base
// of equal longitudes (pixel columns), and a line CP parallel to the base.
//
// Its weight carries the squared area, so that exactly collinear points weigh nothing; a table
// whose every triangle is thin (HasTriangle.h) counts as empty.
//
// The cost grows with the cube of the number of points. The program uses ForwardBlend and
// InverseBlend, which give the same; this form is what they are tested against.

#pragma once

#include <span>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"

namespace map {

// Pixel of a position, before it is brought into the 16-bit range; 0/0 when no triangle
// contributes.
Pixel TriangleBlendToPixel(std::span<const ReferencePoint> points, geo::GeoPosition position);

// Position of a pixel; 0/0 when no triangle contributes. The weight of a rotation is that of its
// first vertex alone, so that it is not the inverse of the other direction but close to it.
geo::GeoPosition TriangleBlendToGeo(std::span<const ReferencePoint> points, Pixel pixel);

}  // namespace map
