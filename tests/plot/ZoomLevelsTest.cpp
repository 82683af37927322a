#include "plot/ZoomLevels.h"

#include <gtest/gtest.h>

namespace plot {
namespace {

TEST(ComputeScale, HasTheListedPairOfEveryLevel)
{
    const struct {
        float viewRange;
        double ringSpacing;
    } levels[] = {
        {0.01F, 0.001}, {0.02F, 0.002}, {0.05F, 0.005}, {0.1F, 0.01}, {0.2F, 0.02}, {0.3F, 0.05},
        {0.5F, 0.1},    {0.8F, 0.1},    {1, 0.1},       {2, 0.2},     {3, 0.5},     {5, 1},
        {8, 1},         {10, 2},        {15, 3},        {20, 5},      {30, 5},      {50, 10},
        {80, 10},       {100, 20},      {150, 25},      {200, 50},    {300, 50},    {500, 100},
        {1000, 200},    {1500, 250},    {2000, 500},    {3000, 500},  {5000, 1000}, {8000, 1000},
        {10000, 2000},  {15000, 2500},  {20000, 5000},
    };
    int level = 0;
    for (const auto& expected : levels) {
        ++level;
        SCOPED_TRACE(level);
        EXPECT_EQ(ComputeScale(level).ViewRange(), expected.viewRange);
        EXPECT_EQ(ComputeScale(level).ringSpacing / 1000.0, expected.ringSpacing);
    }
    EXPECT_EQ(level, kFarthestZoom);
}

TEST(ComputeScale, CountsRingsUpToEighteenTenthsOfTheRangeExactly)
{
    const struct {
        int level;
        int rings;
    } cases[] = {
        {1, 18},  // ends with 18 m
        {6, 10},  // 0.5 km in 0.54
        {7, 9},   // 0.9 km, exactly 1.8 times 0.5 km
        {9, 18},  // ends with 1800 m
        {14, 9},  // ends with 18 km
        {33, 7},  // 35000 km in 36000
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.level);
        EXPECT_EQ(ComputeScale(c.level).RingCount(), c.rings);
    }
}

TEST(ComputeScale, LevelThatDoesNotExistIsTheStartLevel)
{
    for (const int level : {-32768, -1, 0, 34, 32767}) {
        SCOPED_TRACE(level);
        EXPECT_EQ(ComputeScale(level).ViewRange(), 10.0F);
        EXPECT_EQ(ComputeScale(level).ringSpacing, 2000);
    }
}

TEST(Zoom, StopsAtTheFirstAndTheLastLevel)
{
    EXPECT_EQ(ZoomedIn(2), 1);
    EXPECT_EQ(ZoomedIn(1), 1);
    EXPECT_EQ(ZoomedOut(32), 33);
    EXPECT_EQ(ZoomedOut(33), 33);
}

}  // namespace
}  // namespace plot
