// A station record in the form that it has in the files: 290 bytes without padding.
//
//   offset  bytes
//        0     10  end positions: for text field k the 1-based position just behind its last
//                  character in the text buffer; 0: the field holds nothing
//       10    256  text buffer: Windows-1252, the fields one after the other, blanks behind
//      266      8  longitude, decimal degrees, east positive
//      274      8  latitude, decimal degrees, north positive
//      282      8  reserved
//
// Field 0 begins at position 1, each other field where the one before it ends. A record is read and
// written as it stands: what the program does not use comes back unchanged.

#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "geo/GeoPosition.h"

namespace stations {

enum class Field : std::uint8_t {
    Callsign,
    Name,
    Place,
    Frequency,
    Remark,
    Date,
    Reserved6,
    Reserved7,
};

// The fields that hold something, in their order.
inline constexpr std::array kTextFields = {Field::Callsign,  Field::Name,   Field::Place,
                                           Field::Frequency, Field::Remark, Field::Date};

// Bytes of `text` without the blanks at both ends.
inline std::string_view Trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);  // npos + 1 is 0
}

class StationRecord {
public:
    // Text of a field as it is stored, for comparing. It lives as long as the record. Positions
    // that make no sense give an empty text.
    std::string_view Bytes(Field field) const
    {
        const auto k = static_cast<std::size_t>(field);
        const std::size_t start = k == 0 ? 1 : ends_[k - 1];
        const std::size_t end = ends_[k];
        if (start == 0 || end <= start) {
            return {};
        }
        return {text_.data() + start - 1, end - start};
    }

    // The same as UTF-8, for showing.
    std::string Text(Field field) const;

    // Stores a field, in Windows-1252, without the blanks at its ends and cut to the room left: all
    // fields together hold 254 characters. Fields are stored in ascending order. Where no room is
    // left nothing is stored, and nothing in the fields behind it either. False when something was
    // cut or left out.
    bool SetBytes(Field field, std::string_view bytes);

    // Stores the fields from the callsign to the date, and nothing in the reserved ones. The fields
    // that were cut or left out, in their order.
    std::vector<Field> SetTexts(const std::array<std::string_view, kTextFields.size()>& texts);

    // Decimal degrees as they stand in the file: any value, one that is not finite included.
    double Longitude() const { return std::bit_cast<double>(longitude_); }
    double Latitude() const { return std::bit_cast<double>(latitude_); }
    geo::GeoPosition Position() const { return {.latitude = Latitude(), .longitude = Longitude()}; }
    void SetPosition(geo::GeoPosition position);

    // All 290 bytes.
    bool operator==(const StationRecord&) const = default;

private:
    friend constexpr StationRecord EmptyRecord();

    std::array<std::uint8_t, 10> ends_ = {};
    std::array<char, 256> text_ = {};
    std::array<unsigned char, 8> longitude_ = {};
    std::array<unsigned char, 8> latitude_ = {};
    std::array<unsigned char, 8> reserved_ = {};
};

static_assert(sizeof(StationRecord) == 290 && alignof(StationRecord) == 1
                  && std::is_trivially_copyable_v<StationRecord>,
              "records are read and written as they stand in memory");

// A record without texts at latitude and longitude 0: end positions 0, 256 blanks, zeros. (One made
// by default has zeros for blanks.)
constexpr StationRecord EmptyRecord()
{
    StationRecord record;
    record.text_.fill(' ');
    return record;
}

// What a station panel shows of a station, UTF-8.
struct StationTexts {
    std::string callsign;
    std::string name;
    std::string place;
    std::string frequency;
    std::string remark;
    std::string date;
};

// A new record. `now` stands in for a date that is empty or blank.
StationRecord BuildRecord(const StationTexts& texts, geo::GeoPosition position,
                          std::string_view now);

// The fields that BuildRecord cuts or leaves out because the texts are together too long, in their
// order.
std::vector<Field> CutFields(const StationTexts& texts, std::string_view now);

StationTexts TextsOf(const StationRecord& record);

}  // namespace stations
