#include "stations/ListLine.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "stations/Records.h"

namespace stations {
namespace {

const base::NumberFormat kComma(",");

StationRecord Station()
{
    return MakeRecord({"DL1ABC", "Anna", "K\xF6ln", "145.500", "mobil", "2007.03.04-05:06:07"},
                      {.latitude = -48.125, .longitude = 11.625});
}

TEST(ListLine, LeadsWithTheFieldOfTheKey)
{
    const struct {
        int key;
        const char* line;
    } cases[] = {
        {0, "DL1ABC - Anna - K\u00f6ln"},
        {1, "Anna - DL1ABC - K\u00f6ln"},
        {2, "K\u00f6ln - DL1ABC - Anna"},
        {3, "145.500 - DL1ABC - Anna"},
        {4, "-48,13 - DL1ABC - Anna - K\u00f6ln"},
        {5, "11,63 - DL1ABC - Anna - K\u00f6ln"},
        {6, "mobil - DL1ABC - Anna - K\u00f6ln"},
        {7, "1234,568 km - DL1ABC - Anna - K\u00f6ln"},
        {8, "1234,57\u00b0 - DL1ABC - Anna - K\u00f6ln"},
        {9, "2007.03.04-05:06:07 - DL1ABC - Anna - K\u00f6ln"},
        {10, "DL1ABC - Anna - K\u00f6ln"},
        {-1, "DL1ABC - Anna - K\u00f6ln"},
        {-32768, "DL1ABC - Anna - K\u00f6ln"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.key);
        EXPECT_EQ(ListLine(Station(), static_cast<ListKey>(c.key), 1234.5678, kComma), c.line);
    }
}

TEST(ListLine, KeepsTheSeparatorsOfEmptyTexts)
{
    const StationRecord record = MakeRecord({"DL1ABC"}, {.latitude = 0.0, .longitude = -0.001});
    const struct {
        ListKey key;
        const char* line;
    } cases[] = {
        {ListKey::Callsign, "DL1ABC -  - "},        {ListKey::Name, " - DL1ABC - "},
        {ListKey::Latitude, "0,00 - DL1ABC -  - "}, {ListKey::Longitude, "0,00 - DL1ABC -  - "},
        {ListKey::Remark, " - DL1ABC -  - "},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ListLine(record, c.key, 0.0, kComma), c.line);
    }
}

TEST(ListLine, IsNeverCut)
{
    EXPECT_EQ(ListLine(MakeRecord({std::string(254, 'x')}), ListKey::Callsign, 0.0, kComma),
              std::string(254, 'x') + " -  - ");
}

TEST(ListLine, IsOneLine)
{
    const struct {
        const char* name;
        const char* shown;
    } cases[] = {
        {"a\nb", "a b"}, {"a\r\nb", "a b"},    {"a\rb", "a b"},    {"a\n\rb", "a  b"},
        {"a\vb", "a b"}, {"a\fb\tc", "a b c"}, {"a\n\nb", "a  b"}, {"\r\n\r\n", "  "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.shown);
        const StationRecord record = MakeRecord({"DL1ABC", c.name, "Ort"});
        EXPECT_EQ(ListLine(record, ListKey::Callsign, 0.0, kComma),
                  "DL1ABC - " + std::string(c.shown) + " - Ort");
        EXPECT_EQ(record.Text(Field::Name), c.name) << "the record keeps its text";
    }
    const StationRecord record = MakeRecord({"DL1ABC", std::string("a\0b", 3), "Ort"});
    EXPECT_EQ(ListLine(record, ListKey::Name, 0.0, kComma), "a b - DL1ABC - Ort");
}

TEST(LongestLine, CountsTheTextsThatTheLineShows)
{
    const std::vector<StationRecord> records = {
        MakeRecord({"A", "B", "C", "a long frequency"}),
        MakeRecord({"A", "longer name", "C"}),
        MakeRecord({"A", "B", "C", "", "the longest remark"}),
    };
    EXPECT_EQ(LongestLine(records, ListKey::Callsign), 1U);
    EXPECT_EQ(LongestLine(records, ListKey::Frequency), 0U);
    EXPECT_EQ(LongestLine(records, ListKey::Remark), 2U);
    EXPECT_EQ(LongestLine({}, ListKey::Callsign), 0U);
}

TEST(KeyOfSortEntry, IsTheIndexOfTheEntryLessOne)
{
    EXPECT_EQ(kSortEntries.size(), 11U);
    EXPECT_EQ(KeyOfSortEntry(-1), std::nullopt);
    EXPECT_EQ(KeyOfSortEntry(0), std::nullopt);
    EXPECT_EQ(KeyOfSortEntry(1), ListKey::Callsign);
    EXPECT_EQ(KeyOfSortEntry(10), ListKey::Date);
    EXPECT_EQ(KeyOfSortEntry(11), std::nullopt);
    EXPECT_STREQ(kSortEntries[8], "Entfernung von Station 1");
    EXPECT_EQ(KeyOfSortEntry(8), ListKey::Distance);
}

}  // namespace
}  // namespace stations
