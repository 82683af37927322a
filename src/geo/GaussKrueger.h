// German Gauss-Krüger grid: 3-degree strips on the Bessel ellipsoid.

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

// The inverse: within strips 1 to 6 and 35 to 70 degrees north it agrees with GeoGk to 5 cm. The
// strip is the whole millions of the easting, at the limit of 16 bits beyond it.
GeoPosition GkToGeo(GridPosition grid, std::uint8_t datum);

// Whole metres with at least seven digits, "0000000"; empty when not finite.
std::string GridText(double metres, const base::NumberFormat& format);

}  // namespace geo
