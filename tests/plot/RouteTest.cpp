#include "plot/Route.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace plot {
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

TEST(Route, LosesItsFirstPoints)
{
    const auto routeOf = [](int points) {
        Route route;
        for (int i = 0; i < points; ++i) {
            route.Append({Pen::Down, {.latitude = 50.0 + i, .longitude = 7.0}});
        }
        return route;
    };
    for (const int points : {0, 1, 4}) {
        for (const std::size_t removed : {0U, 1U, 3U, 4U, 9U}) {
            Route route = routeOf(points);
            const auto count = static_cast<std::size_t>(points);
            route.RemoveFirst(removed);
            ASSERT_EQ(route.Count(), count - std::min(count, removed));
            if (!route.Empty()) {
                EXPECT_EQ(route.Points().back().position.latitude, 50.0 + points - 1);
                EXPECT_EQ(route.Points().front().position.latitude,
                          50.0 + static_cast<double>(removed));
            }
        }
    }
}

}  // namespace
}  // namespace plot
