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

// The next place of a certain byte, remembered until it has been passed: both kinds of line end are
// looked for in a file that may hold only one of them.
class NextByte {
public:
    NextByte(std::string_view text, char byte) : text_(text), byte_(byte) {}

    // First place at or behind `from`, which never decreases; the end of the text when there is
    // none.
    std::size_t From(std::size_t from)
    {
        if (!found_ || place_ < from) {
            place_ = std::min(text_.find(byte_, from), text_.size());
            found_ = true;
        }
        return place_;
    }

private:
    std::string_view text_;
    char byte_;
    std::size_t place_ = 0;
    bool found_ = false;
};

class LineReader {
public:
    explicit LineReader(std::string_view text)
        : text_(text), carriageReturn_(text, '\r'), lineFeed_(text, '\n')
    {
    }

    // Without its end; nothing behind the last line.
    std::optional<std::string_view> Next()
    {
        if (begin_ >= text_.size()) {
            return std::nullopt;
        }
        const std::size_t end = std::min(carriageReturn_.From(begin_), lineFeed_.From(begin_));
        const std::string_view line = text_.substr(begin_, end - begin_);
        begin_ = end + (text_.substr(end, 2) == "\r\n" ? 2 : 1);
        ++number_;
        return line;
    }

    // Of the line read last, counted from 1.
    std::size_t Number() const { return number_; }

private:
    std::string_view text_;
    NextByte carriageReturn_;
    NextByte lineFeed_;
    std::size_t begin_ = 0;
    std::size_t number_ = 0;
};

// The number that the whole of `field`, which has no blanks around it, is.
std::optional<double> WholeNumber(std::string_view field)
{
    std::string_view digits = field;
    if (digits.starts_with('-') || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    // from_chars knows infinity and NaN, too.
    if (digits.find_first_of("0123456789.,") != 0) {
        return std::nullopt;
    }
    std::string repaired;
    if (digits.find(',') != std::string_view::npos) {
        repaired = base::RepairDecimalComma(digits);
        digits = repaired;
    }
    double magnitude = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(),
                                              magnitude, std::chars_format::fixed);
    if (error == std::errc::invalid_argument || end != digits.data() + digits.size()) {
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
    bool blank = true;  // no field holds anything
};

Line ReadLine(std::string_view rest)
{
    Line line;
    bool more = true;
    while (more && (line.text.empty() || line.numberCount < line.numbers.size())) {
        const std::size_t tab = rest.find('\t');
        more = tab != std::string_view::npos;
        const std::string_view field = Trimmed(rest.substr(0, tab));
        rest.remove_prefix(more ? tab + 1 : rest.size());
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

// False when something was cut or left out.
bool FillRecord(StationRecord& record, const Line& line, std::string_view text,
                std::string_view date)
{
    static constexpr StationRecord kEmpty = EmptyRecord();
    record = kEmpty;
    const bool wholeCallsign = record.SetBytes(Field::Callsign, text);
    record.SetBytes(Field::Name, {});
    const bool wholePlace = record.SetBytes(Field::Place, text);
    record.SetBytes(Field::Frequency, {});
    record.SetBytes(Field::Remark, {});
    const bool wholeDate = record.SetBytes(Field::Date, date);
    record.SetBytes(Field::Reserved6, {});
    record.SetBytes(Field::Reserved7, {});
    record.SetPosition({.latitude = line.numbers[0], .longitude = line.numbers[1]});
    return wholeCallsign && wholePlace && wholeDate;
}

// What composing changes begins at U+0300: only from there on has UTF-8 bytes as large as this.
constexpr unsigned char kFirstByteOfMarks = 0xCC;

std::string ComposedCodePage(std::string_view utf8, ComposeText compose)
{
    std::string bytes = base::ToCodePage(utf8);
    const bool ascii = bytes.size() == utf8.size();
    if (ascii || compose == nullptr || std::none_of(utf8.begin(), utf8.end(), [](char c) {
            return static_cast<unsigned char>(c) >= kFirstByteOfMarks;
        })) {
        return bytes;
    }
    return base::ToCodePage(compose(utf8));
}

void NoteSkipped(ImportResult& result, SkippedLine line)
{
    ++result.skipped;
    if (result.firstSkipped.size() < kLinesNamed) {
        result.firstSkipped.push_back(line);
    }
}

void NoteCut(ImportResult& result, std::size_t number)
{
    ++result.cut;
    if (result.firstCut.size() < kLinesNamed) {
        result.firstCut.push_back(number);
    }
}

enum class Encoding { Utf8, CodePage };

struct TextForm {
    Encoding encoding = Encoding::Utf8;
    ComposeText compose = nullptr;
};

ImportResult ImportLines(std::string_view text, TextForm form, std::string_view date,
                         StationDatabase& database)
{
    ImportResult result;
    const std::size_t before = database.Count();
    constexpr std::size_t kShortestLine = 6;  // a character, two digits, two tabs and its end
    database.Reserve(std::min(before + text.size() / kShortestLine + 1, kMaxRecords));
    LineReader lines(text);
    while (const std::optional<std::string_view> content = lines.Next()) {
        if (content->starts_with('#')) {
            continue;
        }
        const Line line = ReadLine(*content);
        if (line.blank) {
            continue;
        }
        if (const std::optional<SkipReason> reason = ReasonToSkip(line)) {
            NoteSkipped(result, {.number = lines.Number(), .reason = *reason});
            continue;
        }
        if (database.Count() == kMaxRecords) {
            database.Truncate(before);
            ImportResult tooMany;
            tooMany.tooMany = true;
            return tooMany;
        }
        StationRecord& record = database.Extend(1).front();
        const bool whole =
            form.encoding == Encoding::Utf8
                ? FillRecord(record, line, ComposedCodePage(line.text, form.compose), date)
                : FillRecord(record, line, line.text, date);
        if (!whole) {
            NoteCut(result, lines.Number());
        }
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
        return ImportLines(FromUtf16(bytes.subspan(2), endian),
                           {.encoding = Encoding::Utf8, .compose = compose}, date, database);
    }
    if (text.starts_with(kUtf8Mark)) {
        text.remove_prefix(kUtf8Mark.size());
    }
    const Encoding encoding = base::IsUtf8(text) ? Encoding::Utf8 : Encoding::CodePage;
    return ImportLines(text, {.encoding = encoding, .compose = compose}, date, database);
}

}  // namespace stations
