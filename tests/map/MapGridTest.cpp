#include "map/MapGrid.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace map {
namespace {

TEST(GridSpacing, GrowsWithTheSpans)
{
    const struct {
        double spans;
        int spacing;
    } cases[] = {
        {0.0, 1},     {0.999, 1}, {1.0, 2},     {1.3, 2},    {1.999, 2},
        {2.0, 5},     {4.999, 5}, {5.0, 10},    {9.999, 10}, {10.0, 30},
        {19.999, 30}, {20.0, 60}, {59.999, 60}, {60.0, 600}, {500.0, 600},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.spans);
        EXPECT_EQ(GridSpacing(c.spans), c.spacing);
    }
}

TEST(GridOf, BeginsBelowTheSouthernAndWesternEdge)
{
    const auto grid = GridOf({.south = 48.01, .north = 48.51, .west = 11.05, .east = 11.85});
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->spacing, 2);
    EXPECT_EQ(grid->parallels, 17) << "0.5 * 30 + 2";
    EXPECT_EQ(grid->meridians, 26) << "0.8 * 30 + 2";
    EXPECT_EQ(grid->Node(0, 0), (geo::GeoPosition{48.0, 11.0 + 2.0 / 60.0}));
    EXPECT_EQ(grid->Node(16, 25), (geo::GeoPosition{48.0 + 32.0 / 60.0, 11.0 + 52.0 / 60.0}));
}

TEST(GridOf, FloorsSouthOfTheEquatorAndWestOfGreenwich)
{
    const auto grid = GridOf({.south = -0.01, .north = 30.0, .west = -10.0, .east = 20.5});
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->spacing, 600);
    EXPECT_EQ(grid->Node(0, 0), (geo::GeoPosition{-10.0, -10.0}))
        << "an edge on a line starts there";
    EXPECT_EQ(grid->parallels, 5);
    EXPECT_EQ(grid->meridians, 5);
}

TEST(GridOf, RoundsTheCountsHalfToEven)
{
    const auto grid = GridOf({.south = 0.0, .north = 25.0, .west = 0.0, .east = 35.0});
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->parallels, 4) << "2.5 + 2";
    EXPECT_EQ(grid->meridians, 6) << "3.5 + 2";
}

TEST(GridOf, RefusesTooManyLinesAndCornersOffTheEarth)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(GridOf({.south = 0.0, .north = 9980.0, .west = 0.0, .east = 10.0}));
    EXPECT_FALSE(GridOf({.south = 0.0, .north = 9990.0, .west = 0.0, .east = 10.0}));
    EXPECT_FALSE(GridOf({.south = 0.0, .north = 10.0, .west = 0.0, .east = 9990.0}));
    EXPECT_FALSE(GridOf(CornerBounds{}));
    EXPECT_FALSE(GridOf({.south = 0.0, .north = infinity, .west = 0.0, .east = 1.0}));
    EXPECT_FALSE(GridOf({.south = 0.0, .north = 1.0, .west = nan, .east = 1.0}));
    EXPECT_FALSE(GridOf({.south = 1e300, .north = 1e300, .west = 0.0, .east = 1.0}));
}

TEST(CornerBounds, WidensToTheOuterPositions)
{
    CornerBounds bounds;
    bounds.Widen({48.0, 11.0});
    EXPECT_EQ(bounds, (CornerBounds{.south = 48.0, .north = 48.0, .west = 11.0, .east = 11.0}));
    bounds.Widen({47.0, 11.5});
    bounds.Widen({47.5, 10.5});
    EXPECT_EQ(bounds, (CornerBounds{.south = 47.0, .north = 48.0, .west = 10.5, .east = 11.5}));
}

TEST(GridOf, CoversTheCornersOfTheImage)
{
    ReferenceTable table;
    table.AddStation2Reference(0.0, 0.0, {49.0, 11.0});
    table.AddStation2Reference(1000.0, 0.0, {49.0, 12.0});
    table.AddStation2Reference(0.0, 1000.0, {48.0, 11.0});
    const auto grid = GridOf(table, {.width = 800, .height = 500}, Refinement::On);
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->spacing, 2);
    EXPECT_EQ(grid->parallels, 17);
    EXPECT_EQ(grid->meridians, 26);
}

TEST(GridOf, NoneWithoutUsablePoints)
{
    const ImageSize size = {.width = 800, .height = 500};
    const struct {
        const char* name;
        std::vector<ReferencePoint> points;
    } cases[] = {
        {"none", {}},
        {"two", {{0, 0, 11, 49}, {800, 0, 12, 49}}},
        {"one line", {{0, 0, 11, 49}, {80, 50, 12, 48}, {800, 500, 21, 39}}},
        {"one line of the image", {{0, 0, 11, 49}, {80, 50, 12, 49}, {800, 500, 11, 39}}},
        {"one line of the earth", {{0, 0, 11, 49}, {80, 0, 12, 48}, {800, 500, 21, 39}}},
    };
    for (const auto& c : cases) {
        for (const Refinement refinement : {Refinement::On, Refinement::Off}) {
            ReferenceTable table;
            table.Replace(c.points, static_cast<std::int16_t>(c.points.size()));
            EXPECT_FALSE(GridOf(table, size, refinement)) << c.name;
        }
    }
}

TEST(GridOf, AMapAtZeroHasLines)
{
    const ImageSize size = {.width = 800, .height = 500};
    ReferenceTable table;
    table.Replace({{0, 0, 0, 0}, {800, 0, 1, 0}, {0, 500, 0, 1}}, 3);
    EXPECT_TRUE(GridOf(table, size, Refinement::On));
}

}  // namespace
}  // namespace map
