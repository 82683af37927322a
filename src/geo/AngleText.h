// Angles as texts: degrees, minutes and seconds ("G-M-S") or hundredths of a minute ("G-M-H").
//
// Rendering rounds by adding half of the last unit and truncating, so that a carry runs through by
// itself and no field ever shows 60. Reading never fails.

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/NumberText.h"
#include "geo/GeoPosition.h"

namespace geo {

// What the third component of an angle counts. Any other value stands for Hundredths.
enum class DegreeMinuteMode : std::uint8_t {
    Seconds = 0,     // G-M-S
    Hundredths = 1,  // G-M-H, hundredths of a minute
};

// One unsigned angle and its hemisphere. A component beyond 16 bits stands at the limit.
struct AngleComponents {
    std::int16_t degrees = 0;
    std::int16_t minutes = 0;  // 0..59
    std::int16_t third = 0;    // 0..59 seconds or 0..99 hundredths of a minute
    char hemisphere = ' ';     // 'O' or 'W', 'N' or 'S'

    bool operator==(const AngleComponents&) const = default;
};

struct DegreeMinutes {
    AngleComponents longitude;
    AngleComponents latitude;

    bool operator==(const DegreeMinutes&) const = default;
};

// Longitude degrees, minutes, third, hemisphere letter, then latitude likewise: the order of the
// fields Text4 to Text11.
using DegreeMinuteTexts = std::array<std::string, 8>;

// Both coordinates in components. The hemisphere comes from the sign before rounding; 0 is east and
// north. A coordinate that is not finite has components 0 and hemisphere ' '.
DegreeMinutes GRDMINSEC(GeoPosition position, DegreeMinuteMode mode);

// The components as field texts: plain integers, no padding; four empty texts for a coordinate
// without a hemisphere.
DegreeMinuteTexts FieldTexts(const DegreeMinutes& angles);

// The position that eight field texts name. Each number is read as it stands: fractions and 75
// minutes count. Only "W", "w", "S", "s" in front of the hemisphere text turn the sign.
GeoPosition ReadDegreeMinutes(const DegreeMinuteTexts& texts, DegreeMinuteMode mode);

// A coordinate in degrees with six decimals, signed: "##0.000000". Empty when not finite.
std::string DecimalText(double degrees, const base::NumberFormat& format);

// Angle of a listing line and of the map's position readout: "  48.18.75" (hundredths) or
// "  48.18'45\"" (seconds); the sign stands directly before the degrees, blanks in front fill to
// four characters: "  -0.15.00". The decimal separator is always ".". Empty when not finite.
std::string ListingAngle(double degrees, DegreeMinuteMode mode);

}  // namespace geo
