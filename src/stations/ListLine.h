// The lines of the station list and the entries of its sort selector.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "base/NumberText.h"
#include "stations/StationRecord.h"

namespace stations {

// Chooses the order of the database and the field that leads each line. Any other value has lines
// like Callsign and compares all records as equal.
enum class ListKey : std::int16_t {
    Callsign = 0,
    Name = 1,
    Place = 2,
    Frequency = 3,
    Latitude = 4,
    Longitude = 5,
    Remark = 6,
    Distance = 7,   // from Station 1
    Direction = 8,  // from Station 1
    Date = 9,
};

// Entries of the sort selector, in order, UTF-8. The first chooses nothing.
inline constexpr std::array kSortEntries = {
    "sortieren nach ...",
    "Rufzeichen",
    "Name",
    "Ort",
    "Frequenz",
    "geografischer Breite",
    "geografischer Länge",
    "Anmerkung",
    "Entfernung von Station 1",
    "Himmelsrichtung von Station 1",
    "Datum",
};

// List key of an entry of the sort selector; none for the first entry and for -1, no choice at all.
std::optional<ListKey> KeyOfSortEntry(int index);

// True for the keys whose values are computed from Station 1 and not held in the records.
constexpr bool HasKeyValues(ListKey key)
{
    return key == ListKey::Distance || key == ListKey::Direction;
}

// Line of a record, UTF-8, never cut. `keyValue` is the record's distance in km or its direction in
// degrees; the other keys do not use it. A number that is not finite leaves out its part of the
// line. Empty texts keep their separators. Line breaks and other control characters are blanks
// here.
std::string ListLine(const StationRecord& record, ListKey key, double keyValue,
                     const base::NumberFormat& format);

// Index of the record whose line has the most characters, a number in front not counted; 0 when
// there are no records. Cheap: looks only at where the texts end. For the width of the whole list;
// in a proportional font a slightly shorter line may be a little wider.
std::size_t LongestLine(std::span<const StationRecord> records, ListKey key);

}  // namespace stations
