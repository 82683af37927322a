#include "stations/TextImport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "base/NumberText.h"
#include "stations/Records.h"

namespace stations {
namespace {

using Skipped = std::vector<SkippedLine>;

constexpr std::string_view kDate = "2007.03.04-05:06:07";

ImportResult Import(std::string_view text, StationDatabase& database)
{
    return ImportText({reinterpret_cast<const unsigned char*>(text.data()), text.size()}, kDate,
                      database);
}

// The stations of a file as "callsign latitude longitude;".
std::string Imported(std::string_view text)
{
    StationDatabase database;
    Import(text, database);
    std::string stations;
    for (const StationRecord& record : database.Records()) {
        stations += record.Text(Field::Callsign) + ' ' + base::PlainDecimal(record.Latitude()) + ' '
                    + base::PlainDecimal(record.Longitude()) + ';';
    }
    return stations;
}

TEST(ImportText, MakesARecordOfTextDateAndPosition)
{
    StationDatabase database = CountedDatabase(1);
    const ImportResult result = Import("DL1ABC\t48.3125\t11.625\r\n", database);
    EXPECT_FALSE(result.tooMany);
    EXPECT_EQ(result.imported, 1U);
    EXPECT_EQ(result.skipped, 0U);
    ASSERT_EQ(database.Count(), 2U);
    EXPECT_EQ(database[1], MakeRecord({"DL1ABC", "", "DL1ABC", "", "", kDate},
                                      {.latitude = 48.3125, .longitude = 11.625}));
}

TEST(ImportText, FindsTextAndNumbersWhereverTheyStand)
{
    const struct {
        std::string_view line;
        const char* station;
    } cases[] = {
        {"A\t1\t2", "A 1 2;"},
        {"1\t2\tA", "A 1 2;"},
        {"1\tA\t2", "A 1 2;"},
        {"\t\t1\t\tA\tB\t\t2\t3", "A 1 2;"},
        {"A\t1,5\t-2.25", "A 1.5 -2.25;"},
        {"A\t -1,5 \t  +2 ", "A -1.5 2;"},
        {"A\t.5\t5.", "A 0.5 5;"},
        {"  A B  \t1\t2", "A B 1 2;"},
        {"1.2.3\t1\t2", "1.2.3 1 2;"},
        {"1,000.5\t1\t2", "1,000.5 1 2;"},
        {"1e1\t1\t2", "1e1 1 2;"},
        {"-\t1\t2", "- 1 2;"},
        {".\t1\t2", ". 1 2;"},
        {"- 1\t1\t2", "- 1 1 2;"},
        {"1N\t1\t2", "1N 1 2;"},
        {"A\t90\t-360", "A 90 -360;"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(Imported(c.line), c.station);
    }
}

TEST(ImportText, PassesOverCommentsAndEmptyLines)
{
    StationDatabase database;
    const ImportResult result =
        Import("# a comment\t1\t2\n\n   \n\t\t\n#\nA\t1\t2\n #B\t1\t2\n", database);
    EXPECT_EQ(Callsigns(database), "A #B ") << "only the first character makes a comment";
    EXPECT_EQ(result.skipped, 0U);
}

TEST(ImportText, SkipsLinesThatNameNoStation)
{
    StationDatabase database;
    const ImportResult result = Import("A\t1\t2\r\n"
                                       "1\t2\r\n"
                                       "B\t1\r\n"
                                       "C\t90.5\t2\r\n"
                                       "D\t1\t-360.5\r\n"
                                       "E\t1\t2\r\n",
                                       database);
    EXPECT_EQ(Callsigns(database), "A E ");
    EXPECT_EQ(result.imported, 2U);
    EXPECT_EQ(result.skipped, 4U);
    EXPECT_EQ(result.firstSkipped, (Skipped{{2, SkipReason::NoText},
                                            {3, SkipReason::NoPosition},
                                            {4, SkipReason::LatitudeOutOfRange}}));
    StationDatabase other;
    EXPECT_EQ(Import("D\t1\t-360.5", other).firstSkipped,
              (Skipped{{1, SkipReason::LongitudeOutOfRange}}));
}

TEST(ImportText, CountsLinesByAnyLineEnd)
{
    const struct {
        const char* what;
        std::string_view text;
        std::size_t number;
    } cases[] = {
        {"CR LF", "A\t1\t2\r\n\r\nx\r\n", 3},
        {"LF", "A\t1\t2\n\nx\n", 3},
        {"CR", "A\t1\t2\r\rx\r", 3},
        {"mixed", "A\t1\t2\n\r\r\n\nx", 5},
        {"no last line end", "A\t1\t2\r\nx", 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        StationDatabase database;
        const ImportResult result = Import(c.text, database);
        EXPECT_EQ(result.imported, 1U);
        EXPECT_EQ(result.firstSkipped, (Skipped{{c.number, SkipReason::NoPosition}}));
    }
}

TEST(ImportText, ReadsEveryEncodingItKnows)
{
    const std::string_view utf16Little("\xFF\xFEK\0\xF6\0\t\0001\0\t\0002\0\r\0\n\0", 18);
    const std::string_view utf16Big("\xFE\xFF\0K\0\xF6\0\t\0001\0\t\0002", 14);
    EXPECT_EQ(Imported("K\u00f6\t1\t2"), "K\u00f6 1 2;");
    EXPECT_EQ(Imported("\xEF\xBB\xBFK\u00f6\t1\t2"), "K\u00f6 1 2;");
    EXPECT_EQ(Imported("K\xF6\t1\t2"), "K\u00f6 1 2;");
    EXPECT_EQ(Imported("\u20ac\t1\t2"), "\u20ac 1 2;");
    EXPECT_EQ(Imported(utf16Little), "K\u00f6 1 2;");
    EXPECT_EQ(Imported(utf16Big), "K\u00f6 1 2;");
    EXPECT_EQ(Imported("\u0416x\t1\t2"), "?x 1 2;") << "the code page lacks it";
}

TEST(ImportText, TakesOneByteThatIsNoUtf8AsTheCodePageOfTheWholeFile)
{
    EXPECT_EQ(Imported("K\u00f6\t1\t2\nK\xF6\t1\t2"), "K\u00c3\u00b6 1 2;K\u00f6 1 2;");
}

TEST(ImportText, SurvivesDamagedUtf16)
{
    // A lone high surrogate, a pair, a lone low one, half a unit at the end.
    const std::string_view text("\xFF\xFE"
                                "a\0\x00\xD8"
                                "b\0\x3D\xD8\xFB\xDC"
                                "c\0\x00\xDC"
                                "\t\0001\0\t\0002\0x",
                                25);
    EXPECT_EQ(Imported(text), "");
    StationDatabase database;
    EXPECT_EQ(Import(text, database).firstSkipped, (Skipped{{1, SkipReason::NoPosition}}))
        << "the half unit makes 2? of the 2";
    EXPECT_EQ(Imported(text.substr(0, 24)), "a?b?c? 1 2;");
}

TEST(ImportText, ComposesTextsThatMayHoldMarks)
{
    static int calls = 0;
    const auto import = [](std::string_view text) {
        StationDatabase database;
        ImportText({reinterpret_cast<const unsigned char*>(text.data()), text.size()}, kDate,
                   database, [](std::string_view utf8) {
                       ++calls;
                       return '<' + std::string(utf8.substr(0, 1)) + '>';
                   });
        return Callsigns(database);
    };
    const std::string_view utf16("\xFF\xFE"
                                 "K\0o\0\x08\x03\t\0001\0\t\0002\0",
                                 16);
    EXPECT_EQ(import("Ko\u0308ln\t1\t2"), "<K> ");
    EXPECT_EQ(import("A\u0327\t1\t2\nA\u036f\t1\t2"), "<A> <A> ");
    EXPECT_EQ(import("\u212b\t1\t2"), "<?> ") << "a sign that is a letter";
    EXPECT_EQ(import(utf16), "<K> ");
    EXPECT_EQ(calls, 5);
    EXPECT_EQ(import("K\u00f6ln\t1\t2"), "K\u00f6ln ");
    EXPECT_EQ(import("Plain\t1\t2"), "Plain ");
    EXPECT_EQ(import("K\xCC\x88ln \xFF\t1\t2"), "K\u00cc\u02c6ln \u00ff ") << "the code page";
    EXPECT_EQ(calls, 5) << "nothing to compose";
}

TEST(ImportText, CountsLinesThatAreTooLongForARecord)
{
    // Twice the text and the date: 254 characters.
    const std::string fits(117, 'x');
    std::string text = "too short\n";
    for (const std::size_t length : {118U, 117U, 253U, 254U, 300U}) {
        text += std::string(length, 'x') + "\t1\t2\n";
    }
    StationDatabase database;
    const ImportResult result = Import(text, database);
    EXPECT_EQ(result.imported, 5U);
    EXPECT_EQ(result.skipped, 1U);
    EXPECT_EQ(result.cut, 4U);
    EXPECT_EQ(result.firstCut, (std::vector<std::size_t>{2, 4, 5}));
    EXPECT_EQ(database[0].Bytes(Field::Date), kDate.substr(0, 18));
    EXPECT_EQ(database[1].Bytes(Field::Date), kDate);
    const std::string blanks(100, ' ');
    EXPECT_EQ(Import(blanks + fits + blanks + "\t1\t2", database).cut, 0U);
    EXPECT_EQ(Import("\u00e4" + fits.substr(1) + "\t1\t2", database).cut, 0U)
        << "one byte in the code page";
}

TEST(ImportText, ImportsUpToTheLimitAndNothingBeyond)
{
    StationDatabase database = CountedDatabase(24999);
    const ImportResult tooMany = Import("A\t1\t2\nB\t1\t2\n", database);
    EXPECT_TRUE(tooMany.tooMany);
    EXPECT_EQ(tooMany.imported, 0U);
    EXPECT_EQ(database.Count(), 24999U);
    EXPECT_FALSE(Import("A\t1\t2\n", database).tooMany);
    EXPECT_EQ(database.Count(), 25000U);
    EXPECT_FALSE(Import("nothing to import\n", database).tooMany);
}

std::string Many(char byte)
{
    std::string bytes;
    return bytes.append(10'000'000, byte);
}

TEST(ImportText, SurvivesHostileFiles)
{
    std::string lines;
    for (int i = 0; i < 100000; ++i) {
        lines += "A\t1\t2\n";
    }
    StationDatabase database;
    EXPECT_TRUE(Import(lines, database).tooMany);
    EXPECT_TRUE(database.Empty());

    const std::string digits = Many('9');
    EXPECT_EQ(Import(digits, database).firstSkipped, (Skipped{{1, SkipReason::NoText}}));
    EXPECT_EQ(Import("A\t" + digits + "\t2", database).firstSkipped,
              (Skipped{{1, SkipReason::LatitudeOutOfRange}}));
    EXPECT_EQ(Import(Many('\t') + "A\t1\t2", database).imported, 1U);
    EXPECT_EQ(Import(Many('x') + "\t1\t2", database).imported, 1U);
    EXPECT_EQ(database[1].Bytes(Field::Callsign), std::string(254, 'x'));
    EXPECT_EQ(Import(std::string(1'000'000, '\r'), database).imported, 0U);
    EXPECT_EQ(Import("", database).imported, 0U);
}

TEST(ImportText, KeepsNulBytesAsPartOfATextAndNotOfANumber)
{
    EXPECT_EQ(Imported(std::string_view("A\0B\t1\t2", 7)), std::string("A\0B 1 2;", 8));
    StationDatabase database;
    EXPECT_EQ(Import(std::string_view("A\t1\0\t2", 6), database).firstSkipped,
              (Skipped{{1, SkipReason::NoPosition}}));
    EXPECT_EQ(Import(std::string(100, '\0'), database).skipped, 1U);
}

}  // namespace
}  // namespace stations
