// Import of stations from a text file of tab-separated fields.
//
// The first field of a line that is neither empty nor a number is the station's text, the first two
// numbers are its latitude and longitude in decimal degrees, wherever they stand. A field is a
// number when the whole of it, blanks aside, is one: "-11,5", ".5", but not "1.000.000". Empty
// lines and lines that begin with "#" are passed over.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bytes.h"
#include "stations/StationDatabase.h"

namespace stations {

enum class SkipReason {
    NoText,
    NoPosition,           // fewer than two numbers
    LatitudeOutOfRange,   // beyond 90 degrees
    LongitudeOutOfRange,  // beyond 360 degrees
};

struct SkippedLine {
    std::size_t number = 0;  // counted from 1
    SkipReason reason = SkipReason::NoText;

    bool operator==(const SkippedLine&) const = default;
};

struct ImportResult {
    bool tooMany = false;  // more than 25000 records together: nothing was imported
    std::size_t imported = 0;
    std::size_t skipped = 0;
    std::vector<SkippedLine> firstSkipped;  // at most three
    std::size_t cut = 0;                    // imported lines too long for a record
    std::vector<std::size_t> firstCut;      // their numbers; at most three
};

// Gives a UTF-8 text with each base letter and its combining marks as one character, where Unicode
// has it (NFC).
using ComposeText = std::string (*)(std::string_view utf8);

// Appends one record for each line that names a station: the text as callsign and place, the
// position, `date` (Windows-1252) as date. `bytes` is UTF-16 when it begins with a byte-order mark
// of that, UTF-8 when it is valid as such, else Windows-1252. CR, LF and CR LF end a line.
// Without `compose` texts are taken as they stand.
ImportResult ImportText(base::ByteView bytes, std::string_view date, StationDatabase& database,
                        ComposeText compose = nullptr);

}  // namespace stations
