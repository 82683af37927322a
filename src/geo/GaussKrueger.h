// German Gauss-Krüger grid: 3-degree strips on the Bessel ellipsoid.
//
// The series are those of L. Krüger, "Konforme Abbildung des Erdellipsoids in der Ebene" (1912), to
// the fifth order, with an easting term of that order of its own. Both directions agree with the
// transverse Mercator of an independent library to 10 mm from 47 to 55 degrees north within 1.5
// degrees of the central meridian. The datum is not changed: a constant offset at the most.

#pragma once

#include <cstdint>
#include <string>

#include "base/NumberText.h"
#include "geo/GeoPosition.h"

namespace geo {

// Metres. The easting (Rechtswert) carries the strip number in its millions and the false easting
// of 500000; the northing (Hochwert) counts from the equator.
struct GridPosition {
    double easting = 0.0;
    double northing = 0.0;
};

// `datum` is the setting "Gauss Krüger Normierung": 0 adds the constant offset "WGS84 (nur
// Süddeutschl.)", 1 and any other value add nothing ("ED50").
//
// Longitudes west of -1.49999999 count on from 360: -2 lies in strip 119. At the poles the easting
// is finite but means nothing. Not finite far outside the globe and for positions that are not.
GridPosition GeoGk(GeoPosition position, std::uint8_t datum);

// The inverse, of metres as typed: within strips 1 to 6 and 35 to 70 degrees north it agrees with
// GeoGk to 5 cm. The strip is the whole millions of the easting, truncated towards 0, at the limit
// of 16 bits beyond it. Not finite far outside the grid.
GeoPosition GkToGeo(GridPosition grid, std::uint8_t datum);

// Whole metres with at least seven digits, "0000000"; empty when not finite.
std::string GridText(double metres, const base::NumberFormat& format);

}  // namespace geo
