// The text listing: one line per record, position columns, then callsign, name, place, frequency,
// remark and date, separated by tabs.

#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "base/NumberText.h"
#include "geo/AngleText.h"
#include "stations/StationRecord.h"

namespace stations {

// The position columns. A mode beyond these has those of DegreeMinutes.
enum class ListingMode : std::int16_t {
    DegreeMinutes = 0,  // latitude, longitude as listing angles
    Degrees = 1,        // latitude, longitude with eight decimals
    Utm = 2,            // zone, easting, northing in whole metres
    Locator = 3,
};

// The whole listing, UTF-8 without byte-order mark, lines ending in CR LF. A tab or line break
// inside a text is written as a blank. Only `Degrees` uses the decimal separator of `format`, only
// `DegreeMinutes` uses `angleMode`. Numbers that are not finite leave their column empty.
std::string ListingText(std::span<const StationRecord> records, ListingMode mode,
                        geo::DegreeMinuteMode angleMode, const base::NumberFormat& format);

}  // namespace stations
