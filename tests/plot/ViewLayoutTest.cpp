#include "plot/ViewLayout.h"

#include <gtest/gtest.h>

namespace plot {
namespace {

TEST(PolarLayout, LeavesTheStripsAtTheRightAndBelow)
{
    EXPECT_EQ(PolarLayout({900, 640}), (ViewLayout{.surface = {820, 620}}));
}

TEST(PolarLayout, IsNeverSmallerThanTwentyUnits)
{
    for (const SurfaceSize inner :
         {SurfaceSize{0, 0}, SurfaceSize{-50, 10}, SurfaceSize{99, 39}, SurfaceSize{100, 40}}) {
        EXPECT_EQ(PolarLayout(inner), (ViewLayout{.surface = {20, 20}}));
    }
    EXPECT_EQ(PolarLayout({101, 41}), (ViewLayout{.surface = {21, 21}}));
}

TEST(ImageLayout, GivesEveryDimensionItsBarOrTheImageSize)
{
    const struct {
        const char* what;
        SurfaceSize inner;
        SurfaceSize image;
        ViewLayout expected;
    } cases[] = {
        {"fits both ways", {880, 620}, {500, 400}, {{500, 400}, false, false}},
        {"fits exactly", {880, 620}, {800, 600}, {{800, 600}, false, false}},
        {"too wide, low", {880, 620}, {801, 300}, {{800, 300}, true, false}},
        {"too high, narrow", {880, 620}, {300, 601}, {{300, 600}, false, true}},
        {"too large both ways", {880, 620}, {2000, 2000}, {{780, 580}, true, true}},
        {"the horizontal bar makes the vertical one necessary",
         {880, 620},
         {801, 581},
         {{780, 580}, true, true}},
        {"the horizontal bar just leaves the height",
         {880, 620},
         {801, 580},
         {{800, 580}, true, false}},
        {"the vertical bar makes the horizontal one necessary",
         {880, 620},
         {781, 601},
         {{780, 580}, true, true}},
        {"the vertical bar just leaves the width",
         {880, 620},
         {780, 601},
         {{780, 600}, false, true}},
        {"a tiny window", {10, 10}, {300, 300}, {{20, 20}, true, true}},
        {"what a bar leaves counts as twenty units, in which the image is not too high",
         {880, 50},
         {2000, 15},
         {{800, 15}, true, false}},
        {"an image below twenty units", {880, 620}, {7, 5}, {{7, 5}, false, false}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(ImageLayout(c.inner, c.image), c.expected);
    }
}

}  // namespace
}  // namespace plot
