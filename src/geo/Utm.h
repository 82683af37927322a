// UTM: 6-degree zones on GRS80, scale 0.9996.
//
// The series are those of J. C. B. Redfearn, "Transverse Mercator Formulae", Empire Survey Review
// 69 (1948). No false northing: southern positions have negative northings.

#pragma once

#include <cstdint>

#include "geo/GeoPosition.h"

namespace geo {

struct UtmPosition {
    std::int16_t zone = 0;  // floor((longitude + 186) / 6), at the limit of 16 bits beyond it
    double easting = 0.0;   // m, false easting of 500000 included
    double northing = 0.0;  // m
};

// Within 1 mm in the zone between 80 S and 84 N; finite at the poles. Not finite far outside the
// globe and for positions that are not; the zone is 0 when the longitude is not a number.
UtmPosition GeoUTM(GeoPosition position);

// The inverse, of metres as typed, to 1 mm where GeoUTM is. `zone` is taken as it was typed and
// need not be a whole number. Not finite far outside the zone.
GeoPosition UtmToGeo(double zone, double easting, double northing);

}  // namespace geo
