#include "map/CalibrationFile.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace map {
namespace {

TEST(InfAngles, RoundToHundredthsOfAMinute)
{
    const struct {
        double degrees;
        const char* latitude;
        const char* longitude;
    } cases[] = {
        {48.25, "48.15.00N", "048.15.00E"},    {-11.5, "11.30.00S", "011.30.00W"},
        {-0.004, "00.00.24S", "000.00.24W"},   {59.99999, "60.00.00N", "060.00.00E"},
        {0.0, "00.00.00N", "000.00.00E"},      {-0.0, "00.00.00N", "000.00.00E"},
        {179.999, "179.59.94N", "179.59.94E"}, {7.999 + 0.0005, "07.59.97N", "007.59.97E"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.degrees);
        EXPECT_EQ(InfLatitude(c.degrees), c.latitude);
        EXPECT_EQ(InfLongitude(c.degrees), c.longitude);
    }
    // Nothing but a number can be written; no value may upset the program.
    EXPECT_FALSE(InfLatitude(std::numeric_limits<double>::infinity()).empty());
    EXPECT_FALSE(InfLatitude(std::numeric_limits<double>::quiet_NaN()).empty());
}

ReferenceTable TableOf(std::vector<ReferencePoint> entries, std::int16_t count)
{
    ReferenceTable table;
    table.Replace(std::move(entries), count);
    return table;
}

TEST(InfText, MeasuresTheMiddlesOfTheEdges)
{
    const ImageSize size = {.width = 800, .height = 600};
    const ReferenceTable table = TableOf(ReferencesFromInf({48.5, 48.0, 11.25, 12.25}, size), 4);
    EXPECT_EQ(InfText(table, size, "karte.jpg"), "48.30.00N, 011.15.00E\r\n"
                                                 "48.00.00N, 012.15.00E\r\n"
                                                 "karte.jpg\r\n");
}

TEST(InfText, HalvesToTheEvenPixel)
{
    // Longitude bends with the row and latitude with the column, so that the middle counts.
    const ReferenceTable table =
        TableOf({{0.0, 0.0, 0.0, 60.0}, {6.0, 0.0, 6.0, 54.0}, {0.0, 6.0, 6.0, 54.0}}, 3);
    // (3 / 2 = 2, 0): 60 - 2; (0, 5 / 2 = 2): 2; (2, 5): 60 - 7; (3, 2): 5.
    EXPECT_EQ(InfText(table, {.width = 3, .height = 5}, "a.gif"), "58.00.00N, 002.00.00E\r\n"
                                                                  "53.00.00N, 005.00.00E\r\n"
                                                                  "a.gif\r\n");
}

TEST(InfText, IsWrittenInWindows1252)
{
    const ImageSize size = {.width = 800, .height = 600};
    const ReferenceTable table = TableOf(ReferencesFromInf({48.5, 48.0, 11.25, 12.25}, size), 4);
    const std::string text = InfText(table, size, "M\u00fcnchen \u0416.jpg").value_or("");
    EXPECT_EQ(text, "48.30.00N, 011.15.00E\r\n48.00.00N, 012.15.00E\r\nM\xFCnchen ?.jpg\r\n");
}

TEST(InfText, NoneWherePointsOnOneLineGiveNoPosition)
{
    const ImageSize size = {.width = 800, .height = 600};
    EXPECT_FALSE(InfText(ReferenceTable(), size, "karte.jpg"));
    EXPECT_FALSE(InfText(
        TableOf({{100, 100, 10.1, 48.9}, {200, 200, 10.2, 48.8}, {300, 300, 10.3, 48.7}}, 3), size,
        "karte.jpg"));
}

TEST(InfText, AMapAroundZeroHasPositions)
{
    const ImageSize size = {.width = 800, .height = 600};
    EXPECT_EQ(InfText(TableOf(ReferencesFromInf({0.0, 0.0, 0.0, 0.0}, size), 4), size, "karte.jpg"),
              "00.00.00N, 000.00.00E\r\n00.00.00N, 000.00.00E\r\nkarte.jpg\r\n");
}

TEST(IsInf, IsATextOfTwoLatitudesAndTwoLongitudes)
{
    const std::string good = "48.30.00N, 011.15.00E\r\n48.00.00N, 012.15.00W\r\nkarte.jpg\r\n";
    EXPECT_TRUE(IsInf(good));
    EXPECT_TRUE(IsInf("48.30.00N 48.00.00N 11.15.00E 12.15.00E"));
    EXPECT_FALSE(IsInf(""));
    EXPECT_FALSE(IsInf("48.30.00N, 011.15.00E"));
    EXPECT_FALSE(IsInf("48.30.00N, 48.00.00N, 47.00.00N, 011.15.00E"));
    EXPECT_FALSE(IsInf(good + good)) << "a list of places";
    EXPECT_FALSE(IsInf(good + std::string(1, '\0'))) << "no text";
    EXPECT_FALSE(IsInf(good + std::string(32767, ' ')));
}

TEST(ReadInf, ReadsWhatWasWritten)
{
    const InfBounds bounds =
        ReadInf("48.30.00N, 011.15.00E\r\n48.00.00N, 012.15.00W\r\nkarte.jpg\r\n");
    EXPECT_EQ(bounds, (InfBounds{48.5, 48.0, 11.25, -12.25}));
}

TEST(ReadInf, TakesEveryFormOfACoordinate)
{
    const InfBounds defaults;
    const struct {
        const char* text;
        double firstLatitude;
        double firstLongitude;
    } cases[] = {
        {"5.30.0N 7.15.0E", 5.5, 7.25},
        {"48.30.5N", 48.0 + 30.5 / 60.0, defaults.firstLongitude},
        {"48.30,75S", -(48.0 + 30.75 / 60.0), defaults.firstLongitude},
        {"48.30.123456N", 48.0 + 30.123456 / 60.0, defaults.firstLongitude},
        {"48.5.50N", 48.0 + 5.5 / 60.0, defaults.firstLongitude},
        {"48.30.00 \t N", 48.5, defaults.firstLongitude},
        {"011.15.00E,48.30.00N", 48.5, 11.25},  // either order, no blank
        {"48.30.00N,011.15.00E", 48.5, 11.25},
        {"lat:48.30.00N;011.15.00E", 48.5, 11.25},
        {"00.00.00S", 0.0, defaults.firstLongitude},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const InfBounds bounds = ReadInf(c.text);
        EXPECT_DOUBLE_EQ(bounds.firstLatitude, c.firstLatitude);
        EXPECT_DOUBLE_EQ(bounds.firstLongitude, c.firstLongitude);
        EXPECT_EQ(bounds.secondLatitude, defaults.secondLatitude);
        EXPECT_EQ(bounds.secondLongitude, defaults.secondLongitude);
    }
}

TEST(ReadInf, PassesOverAnythingElse)
{
    for (const char* const text : {
             "",           "NSEW",        "KARTE SUED WEST.jpg",
             "48.30N",     "48N",         "48.30.00n",
             "48.30.00e",  "1048.30.00N", "48.130.00N",
             "48.60.00N",  "48.30.N",     "48..00N",
             ".30.00N",    "1.48.30.00N", "48:30:00N",
             "48,30.00N",  "48.30.00-N",  "48.30.00\nN",
             "48 .30.00N", "N48.30.00",   "\xEF\xBB\xBF",
         }) {
        EXPECT_EQ(ReadInf(text), InfBounds{}) << text;
    }
}

TEST(ReadInf, TakesTheFirstTwoOfEachKind)
{
    EXPECT_EQ(ReadInf("1.00.00N 2.00.00N 3.00.00N 4.00.00E 5.00.00W 6.00.00E"),
              (InfBounds{1.0, 2.0, 4.0, -5.0}));
}

TEST(ReadInf, EndsAtTheLimitOfItsLength)
{
    const std::string blanks(32767 - 9, ' ');
    EXPECT_EQ(ReadInf(blanks + "48.30.00N").firstLatitude, 48.5);
    EXPECT_EQ(ReadInf(blanks + " 48.30.00N"), InfBounds{});
    EXPECT_EQ(ReadInf(std::string(32766, '9') + "N"), InfBounds{});
}

TEST(EdgesOf, PutsTheLargerLatitudeUpAndTheSmallerLongitudeLeft)
{
    const EdgeCoordinates expected = {.left = 11.0, .right = 12.0, .upper = 49.0, .lower = 48.0};
    EXPECT_EQ(EdgesOf({49.0, 48.0, 11.0, 12.0}), expected);
    EXPECT_EQ(EdgesOf({48.0, 49.0, 12.0, 11.0}), expected);
    EXPECT_EQ(EdgesOf(InfBounds{}),
              (EdgeCoordinates{.left = -180.0, .right = 180.0, .upper = 80.0, .lower = -80.0}));
}

TEST(ReferencesFromInf, TiesTheCornersByTheBoundsAsTheyStand)
{
    const auto entries = ReferencesFromInf({49.0, 48.0, 11.0, 12.5}, {.width = 800, .height = 600});
    const std::vector<ReferencePoint> expected = {
        {0.0, 0.0, 11.0, 49.0},
        {0.0, 600.0, 11.0, 48.0},
        {800.0, 0.0, 12.5, 49.0},
        {800.0, 600.0, 12.5, 48.0},
        {},
    };
    EXPECT_EQ(entries, expected);
    const auto turned = ReferencesFromInf(InfBounds{}, {.width = 10, .height = 20});
    EXPECT_EQ(turned[0], (ReferencePoint{0.0, 0.0, -180.0, -80.0})) << "not sorted";
    EXPECT_EQ(turned[3], (ReferencePoint{10.0, 20.0, 180.0, 80.0}));
}

}  // namespace
}  // namespace map
