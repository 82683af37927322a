#include "stations/TextImport.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

#include "base/CodePage.h"
#include "base/NumberText.h"

namespace stations {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::size_t kLinesNamed = 3;

enum class Endian { Little, Big };

// UTF-16 without its byte-order mark as UTF-8; what is no character becomes "?".
std::string FromUtf16(base::ByteView bytes, Endian endian)
{
    const auto unit = [&](std::size_t index) {
        const unsigned first = bytes[index];
        const unsigned second = bytes[index + 1];
        return static_cast<char32_t>(endian == Endian::Little ? first | second << 8U
                                                              : first << 8U | second);
    };
    std::string text;
    text.reserve(bytes.size());
    std::size_t i = 0;
    for (; i + 1 < bytes.size(); i += 2) {
        char32_t character = unit(i);
        if (character >= 0xD800 && character < 0xDC00 && i + 3 < bytes.size()) {
            const char32_t low = unit(i + 2);
            if (low >= 0xDC00 && low < 0xE000) {
                character = 0x10000 + ((character - 0xD800) << 10U) + (low - 0xDC00);
                i += 2;
            }
        }
        base::AppendUtf8(text, character);
    }
    if (i < bytes.size()) {
        text += '?';
    }
    return text;
}

// What stands before the next `end` in `rest`, which then begins behind it.
std::string_view Take(std::string_view& rest, char end)
{
    const std::string_view part = rest.substr(0, rest.find(end));
    rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    return part;
}

// The number that the whole of `field`, which has no blanks around it, is.
std::optional<double> WholeNumber(std::string_view field)
{
    std::string_view digits = field;
    if (digits.starts_with('-') || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    // from_chars knows infinity and NaN, too.
    if (digits.substr(0, 1).find_first_of("0123456789.,") != 0) {
        return std::nullopt;
    }
    const char* const last = digits.data() + digits.size();
    double magnitude = 0.0;
    const auto [end, error] =
        std::from_chars(digits.data(), last, magnitude, std::chars_format::fixed);
    if (end != last && *end == ',') {
        return WholeNumber(base::RepairDecimalComma(field));
    }
    if (error == std::errc::invalid_argument || end != last) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        return base::ReadNumber(field);
    }
    return field.starts_with('-') ? 0.0 - magnitude : magnitude;
}

// What a line says.
struct Line {
    std::string_view text;
    std::array<double, 2> numbers = {};  // latitude, longitude
    std::size_t numberCount = 0;
    bool blank = true;  // no field holds anything, or a comment
};

Line ReadLine(std::string_view rest)
{
    Line line;
    if (rest.starts_with('#')) {
        return line;
    }
    while (!rest.empty() && (line.text.empty() || line.numberCount < line.numbers.size())) {
        const std::string_view field = Trimmed(Take(rest, '\t'));
        if (field.empty()) {
            continue;
        }
        line.blank = false;
        if (const std::optional<double> number = WholeNumber(field)) {
            if (line.numberCount < line.numbers.size()) {
                line.numbers[line.numberCount++] = *number;
            }
        } else if (line.text.empty()) {
            line.text = field;
        }
    }
    return line;
}

std::optional<SkipReason> ReasonToSkip(const Line& line)
{
    constexpr double kLargestLatitude = 90.0;
    constexpr double kLargestLongitude = 360.0;
    if (line.text.empty()) {
        return SkipReason::NoText;
    }
    if (line.numberCount < line.numbers.size()) {
        return SkipReason::NoPosition;
    }
    if (std::fabs(line.numbers[0]) > kLargestLatitude) {
        return SkipReason::LatitudeOutOfRange;
    }
    if (std::fabs(line.numbers[1]) > kLargestLongitude) {
        return SkipReason::LongitudeOutOfRange;
    }
    return std::nullopt;
}

// The text of a line in the code page, each letter and its marks as one character.
std::string ToBytes(std::string_view utf8, ComposeText compose)
{
    // What composing changes begins at U+0300: only from there on has UTF-8 bytes as large as this.
    constexpr unsigned char kFirstByteOfMarks = 0xCC;
    const bool mayHoldMarks = compose != nullptr && std::ranges::any_of(utf8, [](char c) {
                                  return static_cast<unsigned char>(c) >= kFirstByteOfMarks;
                              });
    return mayHoldMarks ? base::ToCodePage(compose(utf8)) : base::ToCodePage(utf8);
}

// Counts a line and names it when it is one of the first.
template <typename Name>
void Note(const Name& name, std::size_t& count, std::vector<Name>& first)
{
    if (++count <= kLinesNamed) {
        first.push_back(name);
    }
}

ImportResult ImportLines(std::string_view text, std::string_view date, StationDatabase& database,
                         ComposeText compose)
{
    ImportResult result;
    const std::size_t before = database.Count();
    static constexpr StationRecord kEmpty = EmptyRecord();
    constexpr std::size_t kShortestLine = 6;  // a character, two digits, two tabs and its end
    database.Reserve(std::min(before + text.size() / kShortestLine + 1, kMaxRecords));
    std::size_t number = 0;
    while (!text.empty()) {
        std::string_view lines = Take(text, '\n');
        do {
            ++number;
            const Line line = ReadLine(Take(lines, '\r'));
            if (line.blank) {
                continue;
            }
            if (const std::optional<SkipReason> reason = ReasonToSkip(line)) {
                Note({.number = number, .reason = *reason}, result.skipped, result.firstSkipped);
                continue;
            }
            if (!database.Append(kEmpty)) {
                database.Truncate(before);
                ImportResult tooMany;
                tooMany.tooMany = true;
                return tooMany;
            }
            StationRecord& record = database.Last();
            const std::string bytes = ToBytes(line.text, compose);
            if (!record.SetTexts({bytes, {}, bytes, {}, {}, date}).empty()) {
                Note(number, result.cut, result.firstCut);
            }
            record.SetPosition({.latitude = line.numbers[0], .longitude = line.numbers[1]});
        } while (!lines.empty());
    }
    result.imported = database.Count() - before;
    return result;
}

}  // namespace

ImportResult ImportText(base::ByteView bytes, std::string_view date, StationDatabase& database,
                        ComposeText compose)
{
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        const Endian endian = text.starts_with('\xFF') ? Endian::Little : Endian::Big;
        return ImportLines(FromUtf16(bytes.subspan(2), endian), date, database, compose);
    }
    if (text.starts_with(kUtf8Mark)) {
        text.remove_prefix(kUtf8Mark.size());
    }
    return base::IsUtf8(text) ? ImportLines(text, date, database, compose)
                              : ImportLines(base::FromCodePage(text), date, database, compose);
}

}  // namespace stations
