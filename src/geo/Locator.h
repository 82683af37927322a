// Maidenhead locator of the IARU (Maidenhead, 1980): six characters that name a subsquare of 1/12
// degree of longitude by 1/24 degree of latitude.
//
// Reading never fails. A character that is missing or out of place counts as 0, so that half a
// locator already names a point and a field can be decoded while it is being typed.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "geo/GeoPosition.h"

namespace geo {

// Value of the field letter at `pos`, counted in characters from 0, behind the sixth too: "A" is
// -9, "J" is 0, "X" is 14. Centred on "J", the value times the field size is already the signed
// distance from Greenwich or the equator. Lower case counts as upper case; any other character, or
// none, is 0. "S" to "X" lie beyond the globe and are accepted on purpose.
std::int16_t LocCharVal(std::string_view locator, std::size_t pos);

// Value of the square digit at `pos`: 0 to 9; any other character, or none, is 0.
std::int16_t LocNumVal(std::string_view locator, std::size_t pos);

// Value of the subsquare letter at `pos`: "A" is 0, "X" is 23. Lower case counts as upper case;
// any other character, or none, is 0.
std::int16_t LocSuffVal(std::string_view locator, std::size_t pos);

// Centre of the subsquare named by `locator`; characters behind the sixth are ignored. A shorter
// text names the first subsquare of what it covers: "JN58" is read as "JN58AA".
GeoPosition LocatorToPosition(std::string_view locator);

// Locator, in upper case, of a point given in decimal degrees. Nothing is clamped: longitude 180
// has the field letter "S". A character whose code falls outside printable ASCII becomes "?".
// Empty when a coordinate is not finite.
std::string PositionToLocator(double latitude, double longitude);

}  // namespace geo
