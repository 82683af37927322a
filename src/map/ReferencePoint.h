// One tie between image and earth.

#pragma once

namespace map {

// 32 bytes in the adjustment file, fields in this order.
struct ReferencePoint {
    double X = 0.0;          // pixel column, left = 0; a whole number
    double Y = 0.0;          // pixel row, top = 0; a whole number
    double Longitude = 0.0;  // decimal degrees, east positive
    double Latitude = 0.0;   // decimal degrees, north positive

    bool operator==(const ReferencePoint&) const = default;
};

}  // namespace map
