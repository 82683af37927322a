#include "stations/StationRecord.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "stations/Records.h"

namespace stations {
namespace {

constexpr geo::GeoPosition kPosition = {.latitude = 48.3125, .longitude = 11.625};

TEST(StationRecord, HasTheBytesOfTheFile)
{
    const StationTexts texts = {.callsign = "DL1ABC",
                                .name = "Anna",
                                .place = "K\u00f6ln",
                                .frequency = "145.500",
                                .remark = "",
                                .date = "2007.03.04-05:06:07"};
    const std::string ends = {7, 11, 15, 22, 22, 41, 41, 41, 0, 0};
    const std::string text = "DL1ABCAnnaK\xF6ln145.5002007.03.04-05:06:07";
    const std::string longitude("\x00\x00\x00\x00\x00\x40\x27\x40", 8);
    const std::string latitude("\x00\x00\x00\x00\x00\x28\x48\x40", 8);
    EXPECT_EQ(RawBytes(BuildRecord(texts, kPosition, "now")),
              ends + text + std::string(256 - text.size(), ' ') + longitude + latitude
                  + std::string(8, '\0'));
}

TEST(StationRecord, IsEmptyWithBlanksForTexts)
{
    EXPECT_EQ(RawBytes(EmptyRecord()),
              std::string(10, '\0') + std::string(256, ' ') + std::string(24, '\0'));
}

TEST(StationRecord, IsAllZerosWhenMadeByDefault)
{
    EXPECT_EQ(RawBytes(StationRecord()), std::string(290, '\0'));
}

TEST(StationRecord, GivesBackTextsAndPosition)
{
    const StationRecord record = MakeRecord({"DL1ABC", "", "K\xF6ln", "", "x"}, kPosition);
    EXPECT_EQ(record.Bytes(Field::Callsign), "DL1ABC");
    EXPECT_EQ(record.Bytes(Field::Name), "");
    EXPECT_EQ(record.Bytes(Field::Place), "K\xF6ln");
    EXPECT_EQ(record.Text(Field::Place), "K\u00f6ln");
    EXPECT_EQ(record.Bytes(Field::Remark), "x");
    EXPECT_EQ(record.Position(), kPosition);
    EXPECT_EQ(record.Latitude(), 48.3125);
    EXPECT_EQ(record.Longitude(), 11.625);
    EXPECT_EQ(TextsOf(record).place, "K\u00f6ln");
    EXPECT_EQ(TextsOf(record).remark, "x");
}

TEST(StationRecord, TrimsBlanksAtBothEndsOnly)
{
    const StationRecord record = MakeRecord({"  A B  ", "   ", "\tx"});
    EXPECT_EQ(record.Bytes(Field::Callsign), "A B");
    EXPECT_EQ(record.Bytes(Field::Name), "");
    EXPECT_EQ(record.Bytes(Field::Place), "\tx");
}

TEST(StationRecord, GivesALongCallsignAllTheRoom)
{
    const StationRecord record = MakeRecord({std::string(300, 'c'), "Name", "Ort", "1", "2", "3"});
    EXPECT_EQ(record.Bytes(Field::Callsign), std::string(254, 'c'));
    for (const Field field :
         {Field::Name, Field::Place, Field::Frequency, Field::Remark, Field::Date}) {
        EXPECT_EQ(record.Bytes(field), "");
    }
    EXPECT_EQ(RawBytes(record).substr(0, 10), "\xFF" + std::string(9, '\0'))
        << "what finds no room keeps end position 0";
    EXPECT_EQ(RawBytes(record).substr(264, 2), "  ");
}

TEST(StationRecord, CutsAFieldToTheRoomThatIsLeft)
{
    const StationRecord record = MakeRecord({std::string(250, 'c'), "Name", "Ort"});
    EXPECT_EQ(record.Bytes(Field::Name), "Name");
    EXPECT_EQ(record.Bytes(Field::Place), "");
    const StationRecord shorter = MakeRecord({std::string(252, 'c'), "Name", "Ort"});
    EXPECT_EQ(shorter.Bytes(Field::Name), "Na");
    EXPECT_EQ(shorter.Bytes(Field::Place), "");
}

TEST(StationRecord, ReadsAnyEndPositionsWithoutLeavingTheBuffer)
{
    std::array<char, 290> bytes = {};
    bytes.fill('t');
    const struct {
        const char* what;
        std::string_view ends;
        std::string name;
    } cases[] = {
        {"end before the start", std::string_view("\x0A\x05", 2), ""},
        {"end at the start", std::string_view("\x0A\x0A", 2), ""},
        {"previous field never set", std::string_view("\x00\x05", 2), ""},
        {"from the first to the last position", std::string_view("\x01\xFF", 2),
         std::string(254, 't')},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        std::copy(c.ends.begin(), c.ends.end(), bytes.begin());
        EXPECT_EQ(RecordOf(bytes).Bytes(Field::Name), c.name);
    }
}

TEST(BuildRecord, DatesARecordWithoutADateNow)
{
    StationTexts texts;
    EXPECT_EQ(BuildRecord(texts, {}, "2007.03.04-05:06:07").Text(Field::Date),
              "2007.03.04-05:06:07");
    texts.date = "   ";
    EXPECT_EQ(BuildRecord(texts, {}, "2007.03.04-05:06:07").Text(Field::Date),
              "2007.03.04-05:06:07");
    texts.date = " gestern ";
    EXPECT_EQ(BuildRecord(texts, {}, "2007.03.04-05:06:07").Text(Field::Date), "gestern");
}

TEST(CutFields, NamesWhatARecordHasNoRoomFor)
{
    using Fields = std::vector<Field>;
    const std::string_view now = "2007.03.04-05:06:07";
    const StationTexts rest = {
        .callsign = {}, .name = {}, .place = {}, .frequency = {}, .remark = {}, .date = "x"};
    StationTexts texts = rest;
    texts.callsign = std::string(253, 'c');
    EXPECT_EQ(CutFields(texts, now), Fields());
    texts.date = "";
    EXPECT_EQ(CutFields(texts, now), Fields{Field::Date}) << "the date of saving counts";
    texts.date = "   ";
    EXPECT_EQ(CutFields(texts, now), Fields{Field::Date});
    texts.date = "x";
    texts.name = "  ";
    EXPECT_EQ(CutFields(texts, now), Fields());
    texts.remark = "yz";
    EXPECT_EQ(CutFields(texts, now), (Fields{Field::Remark, Field::Date}));
    texts.name = "n";
    EXPECT_EQ(CutFields(texts, now), (Fields{Field::Remark, Field::Date}));
    texts.callsign = std::string(255, 'c');
    texts.place = "p";
    texts.frequency = "f";
    EXPECT_EQ(CutFields(texts, now), (Fields{Field::Callsign, Field::Name, Field::Place,
                                             Field::Frequency, Field::Remark, Field::Date}));
    texts = rest;
    texts.name = ' ' + std::string(200, ' ') + std::string(100, 'n');
    for (int i = 0; i < 153; ++i) {
        texts.place += "\u00e4";
    }
    EXPECT_EQ(CutFields(texts, now), Fields()) << "counted as they are stored";
}

TEST(BuildRecord, WritesAQuestionMarkForWhatTheCodePageLacks)
{
    StationTexts texts;
    texts.place = "\u0416elezno \u20ac";
    EXPECT_EQ(BuildRecord(texts, {}, "").Bytes(Field::Place), "?elezno \x80");
}

}  // namespace
}  // namespace stations
