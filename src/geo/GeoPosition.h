// A point on the earth.

#pragma once

namespace geo {

// Decimal degrees, north and east positive. Values are not range-checked: a longitude of 200 is
// carried through every conversion. Not finite when a grid position has no point on the earth.
struct GeoPosition {
    double latitude = 0.0;
    double longitude = 0.0;

    bool operator==(const GeoPosition&) const = default;
};

}  // namespace geo
