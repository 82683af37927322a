#include "stations/ListLine.h"

#include <algorithm>

#include "base/CodePage.h"

namespace stations {

namespace {

constexpr std::size_t kMostTexts = 4;

// A line: a number by `pattern`, unless that is empty, then the texts.
struct Layout {
    std::string_view pattern;
    std::array<Field, kMostTexts> texts;
    std::size_t count;
};

using enum Field;

constexpr std::array<Layout, 10> kLayouts = {{
    {"", {Callsign, Name, Place}, 3},
    {"", {Name, Callsign, Place}, 3},
    {"", {Place, Callsign, Name}, 3},
    {"", {Frequency, Callsign, Name}, 3},
    {"##0.00 - ", {Callsign, Name, Place}, 3},
    {"##0.00 - ", {Callsign, Name, Place}, 3},
    {"", {Remark, Callsign, Name, Place}, 4},
    {"0.000 km - ", {Callsign, Name, Place}, 3},
    {"0.00° - ", {Callsign, Name, Place}, 3},
    {"", {Date, Callsign, Name, Place}, 4},
}};

const Layout& LayoutOf(ListKey key)
{
    const auto index = static_cast<std::size_t>(key);  // a negative key becomes a large index
    return index < kLayouts.size() ? kLayouts[index] : kLayouts.front();
}

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < ' ';
}

// A line break becomes one blank, as does every other control character.
void MakeOneLine(std::string& line)
{
    for (std::size_t at = 0; (at = line.find("\r\n", at)) != std::string::npos;) {
        line.erase(at, 1);
    }
    std::ranges::replace_if(line, IsControl, ' ');
}

double LeadingNumber(const StationRecord& record, ListKey key, double keyValue)
{
    switch (key) {
    case ListKey::Latitude: return record.Latitude();
    case ListKey::Longitude: return record.Longitude();
    default: return keyValue;
    }
}

}  // namespace

std::optional<ListKey> KeyOfSortEntry(int index)
{
    if (index < 1 || index >= static_cast<int>(kSortEntries.size())) {
        return std::nullopt;
    }
    return static_cast<ListKey>(index - 1);
}

std::string ListLine(const StationRecord& record, ListKey key, double keyValue,
                     const base::NumberFormat& format)
{
    const Layout& layout = LayoutOf(key);
    std::string line;
    if (!layout.pattern.empty()) {
        line = format(LeadingNumber(record, key, keyValue), layout.pattern);
    }
    for (std::size_t i = 0; i < layout.count; ++i) {
        if (i > 0) {
            line += " - ";
        }
        line += record.Text(layout.texts[i]);
    }
    MakeOneLine(line);
    return line;
}

std::size_t LongestLine(std::span<const StationRecord> records, ListKey key)
{
    const Layout& layout = LayoutOf(key);
    std::size_t longest = 0;
    std::size_t mostCharacters = 0;
    for (std::size_t index = 0; index < records.size(); ++index) {
        std::size_t characters = 0;
        for (std::size_t i = 0; i < layout.count; ++i) {
            characters += records[index].Bytes(layout.texts[i]).size();
        }
        if (characters > mostCharacters) {
            mostCharacters = characters;
            longest = index;
        }
    }
    return longest;
}

}  // namespace stations
