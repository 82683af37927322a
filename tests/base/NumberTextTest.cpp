#include "base/NumberText.h"

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(RepairDecimalComma, ReplacesEveryComma)
{
    EXPECT_EQ(RepairDecimalComma("11,625"), "11.625");
    EXPECT_EQ(RepairDecimalComma("1,2,3"), "1.2.3");
    EXPECT_EQ(RepairDecimalComma(""), "");
}

TEST(Val, ReadsTheLeadingNumber)
{
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"", 0.0},       {"abc", 0.0},   {"48.5", 48.5},   {"  48.5", 48.5}, {"-48.5", -48.5},
        {"+48.5", 48.5}, {"--48", 0.0},  {"48.5 N", 48.5}, {"48.5.7", 48.5}, {".5", 0.5},
        {"5.", 5.0},     {".", 0.0},     {"-.5x", -0.5},   {"1e3", 1.0},     {"- 5", 0.0},
        {"0x10", 0.0},   {"inf", 0.0},   {"nan", 0.0},     {"007", 7.0},     {"48,5", 48.0},
        {"1 000", 1.0},  {"\t12", 12.0}, {"+", 0.0},       {"-", 0.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Val(c.text), c.value);
    }
}

TEST(Val, StaysFiniteForAnyNumberOfDigits)
{
    EXPECT_EQ(Val(std::string(400, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(Val("-" + std::string(400, '9')), -std::numeric_limits<double>::max());
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(Val(std::string(400, '0') + "7"), 7.0);
    EXPECT_EQ(Val("." + std::string(400, '0') + "1"), 0.0);
}

TEST(Val, IsNeverANegativeZero)
{
    EXPECT_FALSE(std::signbit(Val("-0")));
    EXPECT_FALSE(std::signbit(Val("-0.000")));
}

TEST(ReadNumber, TakesBothSeparators)
{
    EXPECT_EQ(ReadNumber("48,5"), 48.5);
    EXPECT_EQ(ReadNumber("48.5"), 48.5);
}

TEST(PlainDecimal, IsTheShortestTextWithoutExponent)
{
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {48.3125, "48.3125"},
        {-0.1, "-0.1"},
        {0.0, "0"},
        {-0.0, "0"},
        {1000.0, "1000"},
        {0.00001, "0.00001"},
        {1e21, "1000000000000000000000"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PlainDecimal(c.value), c.text);
    }
    EXPECT_EQ(PlainDecimal(std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(PlainDecimal(std::numeric_limits<double>::quiet_NaN()), "");
}

TEST(PlainDecimal, ReadsBackToTheSameDouble)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> degrees(-360.0, 360.0);
    for (int i = 0; i < 100000; ++i) {
        const double value = degrees(random);
        ASSERT_EQ(Val(PlainDecimal(value)), value);
    }
    for (const double value : {std::numeric_limits<double>::max(), 5e-324, 1.0 / 3.0}) {
        EXPECT_EQ(Val(PlainDecimal(value)), value);
    }
}

TEST(NumberFormat, FollowsThePattern)
{
    const NumberFormat format;
    const struct {
        double value;
        const char* pattern;
        const char* text;
    } cases[] = {
        {11.625, "##0.000000", "11.625000"},
        {-11.625, "##0.000000", "-11.625000"},
        {0.4, "###0.000 km", "0.400 km"},
        {20015.8058, "###0.000", "20015.806"},
        {30.0, "#0.00 Grad", "30.00 Grad"},
        {48.1, "##0.00 - ", "48.10 - "},
        {7.0, "000", "007"},
        {1234.0, "000", "1234"},
        {5312345.4, "0000000", "5312345"},
        {-3.0, "0000000", "-0000003"},
        {18.0, "# km", "18 km"},
        {0.0, "# km", " km"},
        {0.25, "#.00", ".25"},
        {3.0, "(REF0)", "(REF3)"},
        {3.0, "0.00\u00b0 - ", "3.00\u00b0 - "},
        {1e20, "0", "100000000000000000000"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pattern);
        EXPECT_EQ(format(c.value, c.pattern), c.text);
    }
}

TEST(NumberFormat, RoundsHalfAwayFromZeroOnTheExactValue)
{
    const NumberFormat format;
    EXPECT_EQ(format(0.5, "0"), "1");
    EXPECT_EQ(format(1.5, "0"), "2");
    EXPECT_EQ(format(2.5, "0"), "3");
    EXPECT_EQ(format(-2.5, "0"), "-3");
    EXPECT_EQ(format(0.125, "0.00"), "0.13");
    EXPECT_EQ(format(0.375, "0.00"), "0.38");
    EXPECT_EQ(format(9.5, "0"), "10");
    EXPECT_EQ(format(99.96875, "0.0000"), "99.9688");
    EXPECT_EQ(format(999.5, "0"), "1000");
    EXPECT_EQ(format(1.005, "0.00"), "1.00") << "the double lies below 1.005";
    EXPECT_EQ(format(2.675, "0.00"), "2.67") << "the double lies below 2.675";
    EXPECT_EQ(format(1125899906842624.25, "0.0"), "1125899906842624.3");
}

TEST(NumberFormat, NeverPrintsANegativeZero)
{
    const NumberFormat format;
    EXPECT_EQ(format(-0.0, "0.00"), "0.00");
    EXPECT_EQ(format(-0.004, "0.00"), "0.00");
    EXPECT_EQ(format(-0.006, "0.00"), "-0.01");
}

TEST(NumberFormat, UsesItsSeparatorInTheNumberOnly)
{
    EXPECT_EQ(NumberFormat(",")(1.5, "0.00. km"), "1,50. km");
    EXPECT_EQ(NumberFormat("\u066b")(1.5, "0.0"), "1\u066b5");
}

TEST(NumberFormat, UsesItsSeparatorInPlainDecimalsToo)
{
    EXPECT_EQ(NumberFormat(",").Plain(11.45), "11,45");
    EXPECT_EQ(NumberFormat("\u066b").Plain(-0.1), "-0\u066b1");
    EXPECT_EQ(NumberFormat(",").Plain(-1000.0), "-1000");
    EXPECT_EQ(NumberFormat().Plain(0.00001), "0.00001");
    EXPECT_EQ(NumberFormat(",").Plain(std::numeric_limits<double>::infinity()), "");
}

TEST(NumberFormat, ReadsItsSeparatorTheCommaAndThePoint)
{
    for (const char* const separator : {".", ",", "\u066b", "'", ""}) {
        SCOPED_TRACE(separator);
        const NumberFormat format(separator);
        EXPECT_EQ(format.Read("48.5"), 48.5);
        EXPECT_EQ(format.Read("48,5"), 48.5);
        EXPECT_EQ(format.Read(format.Plain(-48.25)), *separator == '\0' ? -4825.0 : -48.25);
        EXPECT_EQ(format.Read("1.2.3"), 1.2);
        EXPECT_EQ(format.Read(""), 0.0);
    }
    EXPECT_EQ(NumberFormat("\u066b").Repair("1\u066b2\u066b3,4"), "1.2.3.4");
}

TEST(NumberFormat, IsEmptyWhenThereIsNoNumberToShow)
{
    const NumberFormat format;
    EXPECT_EQ(format(std::numeric_limits<double>::quiet_NaN(), "0.00 km"), "");
    EXPECT_EQ(format(-std::numeric_limits<double>::infinity(), "0.00 km"), "");
}

TEST(NumberFormat, PrintsTheLargestDouble)
{
    const std::string text = NumberFormat()(std::numeric_limits<double>::max(), "0.00000000");
    EXPECT_EQ(text.size(), 309U + 9U);
}

}  // namespace
}  // namespace base
