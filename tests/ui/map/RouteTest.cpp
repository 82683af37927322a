#include "ui/map/Route.h"

#include <gtest/gtest.h>

namespace ui {
namespace {

TEST(Route, PlaceholdersAreNotPartOfIt)
{
    Route route;
    EXPECT_TRUE(route.Empty());
    EXPECT_TRUE(route.Points().empty());
}

TEST(Route, ClicksOverwriteThePlaceholdersAndThenGrowIt)
{
    Route route;
    for (int i = 0; i < 5; ++i) {
        route.Append({i == 0 ? Pen::Up : Pen::Down, {.latitude = 50.0 + i, .longitude = 7.0}});
    }
    ASSERT_EQ(route.Count(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(route.Points()[i].position.latitude, 50.0 + static_cast<double>(i));
        EXPECT_EQ(route.Points()[i].pen, i == 0 ? Pen::Up : Pen::Down);
    }
    route.Clear();
    EXPECT_TRUE(route.Empty());
}

}  // namespace
}  // namespace ui
