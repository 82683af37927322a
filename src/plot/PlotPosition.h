// Where a geographic position lands on the drawing surface.
//
// Surface units are whole numbers from the upper left corner, y to the south. Roundings go to the
// nearest, halves to the even neighbour.

#pragma once

#include <optional>

#include "geo/GeoPosition.h"
#include "map/CalibrationFile.h"
#include "map/Georeference.h"
#include "map/Pixel.h"
#include "plot/ViewLayout.h"

namespace plot {

struct SurfacePoint {
    int x = 0;
    int y = 0;

    bool operator==(const SurfacePoint&) const = default;
};

// Both values rounded. None unless both are strictly between -65000 and 65000 after rounding: what
// is drawn stays within the range of the drawing calls.
std::optional<SurfacePoint> WholePosition(double x, double y);

// A position as seen from Station 1.
struct PolarPosition {
    double distance = 0.0;  // km
    double cosine = 0.0;    // of the raw bearing, counted clockwise from east
    double sine = 0.0;
};

PolarPosition PolarFrom(geo::GeoPosition station1, geo::GeoPosition position);

// Offset from the centre of the surface, unrounded. `scale` is in surface units per km.
map::Pixel PolarOffset(const PolarPosition& position, double scale);

// Surface units per km: the view range reaches the upper edge.
double PolarUnitsPerKilometre(SurfaceSize surface, float viewRange);

// Where an offset from the centre stands on the surface; the centre of an odd width or height is a
// half unit.
SurfacePoint AtCentre(SurfaceSize surface, SurfacePoint offset);

// Image pixel by linear interpolation between the edges. Edges that are equal give a pixel that is
// not finite, which WholePosition leaves out.
map::Pixel InterpolatedPixel(const map::EdgeCoordinates& edges, map::ImageSize image,
                             geo::GeoPosition position);

// The position of an image pixel by the same interpolation.
geo::GeoPosition InterpolatedPosition(const map::EdgeCoordinates& edges, map::ImageSize image,
                                      map::Pixel pixel);

}  // namespace plot
