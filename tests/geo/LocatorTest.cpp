#include "geo/Locator.h"

#include <cstddef>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace geo {
namespace {

TEST(LocCharVal, CountsFieldLettersFromJ)
{
    const struct {
        const char* locator;
        std::size_t pos;
        int value;
    } cases[] = {
        {"A", 0, -9},
        {"J", 0, 0},
        {"X", 0, 14},
        {"a", 0, -9},
        {"x", 0, 14},
        {"Y", 0, 0},
        {"5", 0, 0},
        {"?", 0, 0},
        {"", 0, 0},
        {"JN", 1, 4},
        {"J", 1, 0},
        {"JN", 2, 0},
        {"@", 0, 0},
        {"\u00c4", 0, 0},
        {"JN58TH", 7, 0},
        {"JN58THKX", 6, 1},
        {"JN58TH\u00c4a", 6, 0},
        {"JN58TH\u00c4a", 7, -9},
        {"JN58THK", 7, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.locator);
        EXPECT_EQ(LocCharVal(c.locator, c.pos), c.value);
    }
}

TEST(LocNumVal, TakesDigitsOnly)
{
    EXPECT_EQ(LocNumVal("0", 0), 0);
    EXPECT_EQ(LocNumVal("JN58", 2), 5);
    EXPECT_EQ(LocNumVal("JN58", 3), 8);
    EXPECT_EQ(LocNumVal("JN59", 3), 9);
    EXPECT_EQ(LocNumVal("JNx8", 2), 0);
    EXPECT_EQ(LocNumVal("/:", 0), 0);
    EXPECT_EQ(LocNumVal("/:", 1), 0);
    EXPECT_EQ(LocNumVal("JN", 2), 0);
    EXPECT_EQ(LocNumVal("JN58TH47", 7), 7);
}

TEST(LocSuffVal, CountsSubsquareLettersFromA)
{
    EXPECT_EQ(LocSuffVal("JN58TH", 4), 19);
    EXPECT_EQ(LocSuffVal("jn58th", 5), 7);
    EXPECT_EQ(LocSuffVal("A", 0), 0);
    EXPECT_EQ(LocSuffVal("X", 0), 23);
    EXPECT_EQ(LocSuffVal("Y", 0), 0);
    EXPECT_EQ(LocSuffVal("5", 0), 0);
    EXPECT_EQ(LocSuffVal("JN58", 4), 0);
    EXPECT_EQ(LocSuffVal("JN58TH47qx", 9), 23);
    EXPECT_EQ(LocSuffVal("JN58TH47qx", 10), 0);
}

TEST(LocatorToPosition, IsTheCentreOfTheSubsquare)
{
    const struct {
        const char* locator;
        double latitude;
        double longitude;
    } cases[] = {
        {"JN58TH", 48.3125, 11.625},
        {"jn58th", 48.3125, 11.625},
        {"AA00AA", -89.9791666666667, -179.958333333333},
        {"RR99XX", 89.9791666666667, 179.958333333333},
        {"JN58", 48.0208333333333, 10.0416666666667},
        {"JN", 40.0208333333333, 0.0416666666666667},
        {"", 0.0208333333333333, 0.0416666666666667},
        {"JNx8TH", 48.3125, 1.625},
        {"SX00AA", 140.020833333333, 180.041666666667},
        {"JN58THAB12 and more", 48.3125, 11.625},
        {"\u00e4\u00f658TH", 8.3125, 11.625},
        {"  58TH", 8.3125, 11.625},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.locator);
        const GeoPosition position = LocatorToPosition(c.locator);
        EXPECT_NEAR(position.latitude, c.latitude, 1e-12);
        EXPECT_NEAR(position.longitude, c.longitude, 1e-12);
    }
    EXPECT_EQ(LocatorToPosition("J?58TH"), LocatorToPosition("JJ58TH"));
    EXPECT_EQ(LocatorToPosition("jn58th"), LocatorToPosition("JN58TH"));
}

TEST(PositionToLocator, CountsSubsquaresFromTheSouthWest)
{
    const struct {
        double latitude;
        double longitude;
        const char* locator;
    } cases[] = {
        {0.0, 0.0, "JJ00AA"},
        {48.3125, 11.625, "JN58TH"},
        {48.35, 11.45, "JN58RI"},
        {-90.0, -180.0, "AA00AA"},
        {90.0, 180.0, "SS00AA"},  // no clamping at the edge of the
                                  // globe
        {0.0, -0.000001, "IJ90XA"},
        {-0.000001, 0.0, "JI09AX"},
        {0.0, 200.0, "TJ00AA"},
        {0.0, -200.0, "@J00AA"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.locator);
        EXPECT_EQ(PositionToLocator(c.latitude, c.longitude), c.locator);
    }
}

TEST(PositionToLocator, WritesAQuestionMarkBeyondPrintableCharacters)
{
    EXPECT_EQ(PositionToLocator(0.0, -840.0), " J00AA");
    EXPECT_EQ(PositionToLocator(0.0, -860.0), "?J00AA");
    EXPECT_EQ(PositionToLocator(520.0, 0.0), "J~00AA");
    EXPECT_EQ(PositionToLocator(530.0, 0.0), "J?00AA");
    EXPECT_EQ(PositionToLocator(0.0, 1e300), "?J?0?A");
    EXPECT_EQ(PositionToLocator(-1e300, 0.0), "J?0?A?");
}

TEST(PositionToLocator, IsEmptyWithoutAPosition)
{
    EXPECT_EQ(PositionToLocator(std::numeric_limits<double>::quiet_NaN(), 0.0), "");
    EXPECT_EQ(PositionToLocator(0.0, std::numeric_limits<double>::infinity()), "");
}

TEST(PositionToLocator, EndsEachSquareWithItsLastSubsquare)
{
    constexpr double kInside = 1e-9;
    for (int longitude = -178; longitude <= 180; longitude += 2) {
        ASSERT_EQ(PositionToLocator(0.0, longitude)[4], 'A') << longitude;
        ASSERT_EQ(PositionToLocator(0.0, longitude - kInside)[4], 'X') << longitude;
    }
    for (int latitude = -89; latitude <= 90; ++latitude) {
        ASSERT_EQ(PositionToLocator(latitude, 0.0)[5], 'A') << latitude;
        ASSERT_EQ(PositionToLocator(latitude - kInside, 0.0)[5], 'X') << latitude;
    }
}

// The sanitizers make this fifteen times slower: there every 37th subsquare is taken, a prime to
// the sizes of the levels, so that every letter and digit still occurs in every place.
#ifdef __SANITIZE_ADDRESS__
constexpr int kStride = 37;
#else
constexpr int kStride = 1;
#endif

TEST(PositionToLocator, GivesBackEverySubsquare)
{
    constexpr int kSubsquares = 18 * 18 * 10 * 10 * 24 * 24;
    int checked = 0;
    for (int i = 0; i < kSubsquares; i += kStride) {
        int rest = i;
        const auto next = [&rest](int count, char first) {
            const int value = rest % count;
            rest /= count;
            return static_cast<char>(first + value);
        };
        const std::string locator = {next(18, 'A'), next(18, 'A'), next(10, '0'),
                                     next(10, '0'), next(24, 'A'), next(24, 'A')};
        const GeoPosition position = LocatorToPosition(locator);
        const std::string shown = PositionToLocator(position.latitude, position.longitude);
        ASSERT_EQ(shown, locator);
        ASSERT_EQ(LocatorToPosition(shown), position);
        ++checked;
    }
    EXPECT_EQ(checked, (kSubsquares + kStride - 1) / kStride);
}

}  // namespace
}  // namespace geo
