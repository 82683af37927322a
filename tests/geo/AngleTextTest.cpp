#include "geo/AngleText.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace geo {
namespace {

constexpr auto kSeconds = DegreeMinuteMode::Seconds;
constexpr auto kHundredths = DegreeMinuteMode::Hundredths;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(DecimalText, HasSixDecimalsAndTheGivenSeparator)
{
    const base::NumberFormat point(".");
    EXPECT_EQ(DecimalText(11.625, point), "11.625000");
    EXPECT_EQ(DecimalText(-0.0416666666, point), "-0.041667");
    EXPECT_EQ(DecimalText(0.0, point), "0.000000");
    EXPECT_EQ(DecimalText(-0.0000001, point), "0.000000");
    EXPECT_EQ(DecimalText(200.0, point), "200.000000");
    EXPECT_EQ(DecimalText(11.625, base::NumberFormat(",")), "11,625000");
    EXPECT_EQ(DecimalText(kNaN, point), "");
}

TEST(GRDMINSEC, SplitsBothCoordinates)
{
    const struct {
        GeoPosition position;
        DegreeMinuteMode mode;
        DegreeMinutes angles;
    } cases[] = {
        {{.latitude = 0.0, .longitude = -11.625}, kSeconds, {{11, 37, 30, 'W'}, {0, 0, 0, 'N'}}},
        {{.latitude = 0.0, .longitude = -11.625}, kHundredths, {{11, 37, 50, 'W'}, {0, 0, 0, 'N'}}},
        {{.latitude = 48.999999, .longitude = 0.0}, kSeconds, {{0, 0, 0, 'O'}, {49, 0, 0, 'N'}}},
        {{.latitude = 48.3125, .longitude = 11.625},
         kSeconds,
         {{11, 37, 30, 'O'}, {48, 18, 45, 'N'}}},
        {{.latitude = -48.3125, .longitude = 200.0},
         kHundredths,
         {{200, 0, 0, 'O'}, {48, 18, 75, 'S'}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.position.longitude);
        SCOPED_TRACE(c.position.latitude);
        EXPECT_EQ(GRDMINSEC(c.position, c.mode), c.angles);
    }
}

TEST(GRDMINSEC, TakesTheHemisphereFromTheSignBeforeRounding)
{
    const AngleComponents west = {.degrees = 0, .minutes = 0, .third = 0, .hemisphere = 'W'};
    const AngleComponents south = {.degrees = 0, .minutes = 0, .third = 0, .hemisphere = 'S'};
    const DegreeMinutes tiny = GRDMINSEC({.latitude = -1e-9, .longitude = -1e-9}, kSeconds);
    EXPECT_EQ(tiny.longitude, west);
    EXPECT_EQ(tiny.latitude, south);
    EXPECT_EQ(GRDMINSEC({.latitude = -0.0, .longitude = -0.0}, kSeconds).longitude.hemisphere, 'O');
}

TEST(GRDMINSEC, NeverShowsAFullMinuteOrDegree)
{
    const double edges[] = {1.0 / 3600.0, 1.0 / 6000.0, 1.0 / 60.0, 1.0};
    for (const auto mode : {kSeconds, kHundredths}) {
        const std::int16_t full = mode == kSeconds ? 60 : 100;
        for (const double edge : edges) {
            for (int i = 1; i <= 4000; ++i) {
                for (const double off : {-1e-4, -1e-12, -1e-15, 0.0, 1e-15, 1e-12}) {
                    const double angle =
                        i * edge - (mode == kSeconds ? 1.0 / 7200.0 : 1.0 / 12000.0);
                    const DegreeMinutes shown =
                        GRDMINSEC({.latitude = 0.0, .longitude = angle + off}, mode);
                    ASSERT_LT(shown.longitude.minutes, 60) << angle + off;
                    ASSERT_LT(shown.longitude.third, full) << angle + off;
                }
            }
        }
    }
}

TEST(GRDMINSEC, SaturatesTheDegrees)
{
    const DegreeMinutes shown = GRDMINSEC({.latitude = -1e300, .longitude = 40000.5}, kSeconds);
    EXPECT_EQ(shown.longitude, (AngleComponents{32767, 30, 0, 'O'}));
    EXPECT_EQ(shown.latitude, (AngleComponents{32767, 0, 0, 'S'}));
}

TEST(FieldTexts, ArePlainIntegersLongitudeFirst)
{
    const DegreeMinuteTexts expected = {"11", "7", "3", "W", "48", "0", "5", "N"};
    EXPECT_EQ(FieldTexts({{11, 7, 3, 'W'}, {48, 0, 5, 'N'}}), expected);
}

TEST(FieldTexts, AreEmptyWhereThereIsNoAngle)
{
    const GeoPosition position = {.latitude = 48.0, .longitude = kInfinity};
    const DegreeMinuteTexts expected = {"", "", "", "", "48", "0", "0", "N"};
    EXPECT_EQ(FieldTexts(GRDMINSEC(position, kSeconds)), expected);
}

TEST(ReadDegreeMinutes, ReadsEachFieldAsItStands)
{
    const struct {
        std::array<const char*, 4> fields;
        DegreeMinuteMode mode;
        double latitude;
    } cases[] = {
        {{"48", "18", "45", "n"}, kSeconds, 48.3125},
        {{"48", "18", "45", "n"}, kHundredths, 48.3075},
        {{"48", "75", "0", "N"}, kSeconds, 49.25},
        {{"48,5", "", "", ""}, kSeconds, 48.5},
        {{"48.5", "1.5", "1,5", "S"}, kSeconds, -(48.5 + 0.025 + 1.5 / 3600.0)},
        {{"", "", "", ""}, kSeconds, 0.0},
        {{"abc", "x", "?", "S"}, kSeconds, 0.0},
        {{"-48", "30", "0", "N"}, kSeconds, -47.5},
        {{"48", "0", "0", "sued"}, kSeconds, -48.0},
        {{"48", "0", "0", " S"}, kSeconds, 48.0},
        {{"48", "0", "0", "W"}, kSeconds, 48.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.fields[0]) + " " + c.fields[1] + " " + c.fields[3]);
        const DegreeMinuteTexts texts = {"",          "",          "",          "",
                                         c.fields[0], c.fields[1], c.fields[2], c.fields[3]};
        EXPECT_NEAR(ReadDegreeMinutes(texts, c.mode).latitude, c.latitude, 1e-13);
    }
}

TEST(ReadDegreeMinutes, TurnsWestForALeadingWOnly)
{
    const struct {
        const char* hemisphere;
        double longitude;
    } cases[] = {{"W", -11.5}, {"west", -11.5}, {"Ost", 11.5}, {"E", 11.5},
                 {"", 11.5},   {"oW", 11.5},    {"S", 11.5},   {"\u00dc", 11.5}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.hemisphere);
        const DegreeMinuteTexts texts = {"11", "30", "0", c.hemisphere, "0", "0", "0", "N"};
        EXPECT_EQ(ReadDegreeMinutes(texts, kSeconds).longitude, c.longitude);
    }
}

TEST(ReadDegreeMinutes, GivesNoNegativeZero)
{
    const GeoPosition zero = ReadDegreeMinutes({"0", "0", "0", "W", "", "", "", "S"}, kSeconds);
    EXPECT_FALSE(std::signbit(zero.longitude));
    EXPECT_FALSE(std::signbit(zero.latitude));
}

TEST(ReadDegreeMinutes, AgreesWithWhatIsShownToHalfAUnit)
{
    constexpr double kRounding = 1e-12;
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> latitude(-90.0, 90.0);
    std::uniform_real_distribution<double> longitude(-180.0, 180.0);
    for (int i = 0; i < 200000; ++i) {
        const GeoPosition position = {.latitude = latitude(random), .longitude = longitude(random)};
        for (const auto mode : {kSeconds, kHundredths}) {
            const double half = (mode == kSeconds ? 1.0 / 7200.0 : 1.0 / 12000.0) + kRounding;
            const GeoPosition back = ReadDegreeMinutes(FieldTexts(GRDMINSEC(position, mode)), mode);
            ASSERT_NEAR(back.latitude, position.latitude, half);
            ASSERT_NEAR(back.longitude, position.longitude, half);
        }
    }
}

TEST(ListingAngle, HasFixedColumns)
{
    const struct {
        double degrees;
        DegreeMinuteMode mode;
        const char* text;
    } cases[] = {
        {48.3125, kHundredths, "  48.18.75"},
        {48.3125, kSeconds, "  48.18'45\""},
        {-0.25, kHundredths, "  -0.15.00"},
        {-11.625, kSeconds, " -11.37'30\""},
        {-120.5, kHundredths, "-120.30.00"},
        {0.0, kHundredths, "   0.00.00"},
        {-0.0, kSeconds, "   0.00'00\""},
        {-1e-9, kSeconds, "  -0.00'00\""},
        {7.0 + 5.0 / 60.0 + 4.0 / 3600.0, kSeconds, "   7.05'04\""},
        {48.999999, kSeconds, "  49.00'00\""},
        {48.999999, kHundredths, "  49.00.00"},
        {-1234.5, kHundredths, "-1234.30.00"},
        {kNaN, kHundredths, ""},
        {-kInfinity, kSeconds, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(ListingAngle(c.degrees, c.mode), c.text);
    }
}

}  // namespace
}  // namespace geo
