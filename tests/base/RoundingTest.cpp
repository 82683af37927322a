#include "base/Rounding.h"

#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace base {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(RoundHalfEven, TakesHalvesToTheEvenNeighbour)
{
    const struct {
        double value;
        double rounded;
    } cases[] = {
        {0.5, 0.0},   {1.5, 2.0},    {2.5, 2.0},    {3.5, 4.0},   {-0.5, 0.0}, {-1.5, -2.0},
        {-2.5, -2.0}, {2.4999, 2.0}, {2.5001, 3.0}, {-2.6, -3.0}, {7.0, 7.0},  {1e300, 1e300},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(RoundHalfEven(c.value), c.rounded);
    }
    EXPECT_EQ(RoundHalfEven(-kInfinity), -kInfinity);
    EXPECT_TRUE(std::isnan(RoundHalfEven(kNaN)));
}

TEST(Saturate, KeepsTheRangeOfTheType)
{
    EXPECT_EQ(Saturate<std::int16_t>(32767.9), 32767);
    EXPECT_EQ(Saturate<std::int16_t>(1e300), 32767);
    EXPECT_EQ(Saturate<std::int16_t>(-1e300), -32768);
    EXPECT_EQ(Saturate<std::int16_t>(-1.9), -1);
    EXPECT_EQ(Saturate<std::int16_t>(kNaN), 0);
    EXPECT_EQ(Saturate<std::int32_t>(kInfinity), 2147483647);
    EXPECT_EQ(Saturate<std::int32_t>(-kInfinity), -2147483647 - 1);
    EXPECT_EQ(Saturate<std::uint8_t>(-3.0), 0);
}

TEST(SaturateFloor, RoundsDownAndKeepsTheRangeOfTheType)
{
    EXPECT_EQ(SaturateFloor<std::int16_t>(1.9), 1);
    EXPECT_EQ(SaturateFloor<std::int16_t>(2.0), 2);
    EXPECT_EQ(SaturateFloor<std::int16_t>(-0.1), -1);
    EXPECT_EQ(SaturateFloor<std::int16_t>(-1.0), -1);
    EXPECT_EQ(SaturateFloor<std::int16_t>(-5e-324), -1);
    EXPECT_EQ(SaturateFloor<std::int16_t>(-32767.5), -32768);
    EXPECT_EQ(SaturateFloor<std::int16_t>(-32768.5), -32768);
    EXPECT_EQ(SaturateFloor<std::int16_t>(32767.5), 32767);
    EXPECT_EQ(SaturateFloor<std::int16_t>(1e300), 32767);
    EXPECT_EQ(SaturateFloor<std::int16_t>(-kInfinity), -32768);
    EXPECT_EQ(SaturateFloor<std::int16_t>(kNaN), 0);
    EXPECT_EQ(SaturateFloor<std::uint8_t>(-0.5), 0);
}

}  // namespace
}  // namespace base
