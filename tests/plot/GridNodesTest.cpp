#include "plot/GridNodes.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "map/CalibrationFile.h"

namespace plot {
namespace {

// A map of the given bounds with references at its corners: a plain north-up map.
map::ReferenceTable NorthUp(const map::InfBounds& bounds, map::ImageSize size)
{
    map::ReferenceTable table;
    table.Replace(map::ReferencesFromInf(bounds, size), 4);
    return table;
}

TEST(MakeGrid, MapOfHalfADegreeByFourFifthsGetsTwoMinutes)
{
    const map::ImageSize size{1600, 1000};
    const map::ReferenceTable table = NorthUp({48.5, 48.0, 11.2, 12.0}, size);
    const auto grid = MakeGrid(table, size, map::Refinement::On);
    ASSERT_TRUE(grid.has_value());
    EXPECT_EQ(grid->parallels, 17);  // 0.5 x 30 + 2
    EXPECT_EQ(grid->meridians, 26);  // 0.8 x 30 + 2
    // Two minutes are 1/15 of the height and 1/24 of the width.
    const map::Pixel& node = grid->At(1, 2);
    EXPECT_NEAR(grid->At(2, 2).y - node.y, -1000.0 / 15.0, 0.01);
    EXPECT_NEAR(grid->At(1, 3).x - node.x, 1600.0 / 24.0, 0.01);
}

TEST(MakeGrid, BeginsAtAWholeMultipleAtOrBelowTheSouthWesternCorner)
{
    const map::ImageSize size{1000, 1000};
    const map::ReferenceTable table =
        NorthUp({48.51, 48.01, 11.01, 11.51}, size);  // 1.0: 2 minutes
    const auto grid = MakeGrid(table, size, map::Refinement::On);
    ASSERT_TRUE(grid.has_value());
    EXPECT_NEAR(grid->At(0, 0).x, (11.0 - 11.01) / 0.5 * 1000.0, 0.01);
    EXPECT_NEAR(grid->At(0, 0).y, (48.51 - 48.0) / 0.5 * 1000.0, 0.01);
}

TEST(MakeGrid, NoneWithMoreThanAThousandLines)
{
    const map::ImageSize size{100, 100};
    const map::ReferenceTable table = NorthUp({20000.0, 0.0, 0.0, 30.0}, size);
    EXPECT_FALSE(MakeGrid(table, size, map::Refinement::Off).has_value());
}

TEST(VisiblePieces, AreThoseThatMeetTheClip)
{
    // Crossings every 100 pixels from 0 to 300.
    GridNodes grid{.parallels = 4, .meridians = 4, .pixels = {}};
    for (int parallel = 0; parallel < 4; ++parallel) {
        for (int meridian = 0; meridian < 4; ++meridian) {
            grid.pixels.push_back({100.0 * meridian, 300.0 - 100.0 * parallel});
        }
    }
    EXPECT_EQ(VisiblePieces(grid, {0.0, 0.0}, {300, 300}).size(), 24U);
    EXPECT_EQ(VisiblePieces(grid, {110.0, 110.0}, {80, 80}).size(), 0U);
    EXPECT_EQ(VisiblePieces(grid, {110.0, 110.0}, {100, 80}).size(), 1U);  // one meridian
    EXPECT_EQ(VisiblePieces(grid, {400.0, 0.0}, {80, 80}).size(), 0U);
}

TEST(VisiblePieces, LeaveOutCrossingsThatAreNoNumbers)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const GridNodes grid{
        .parallels = 1, .meridians = 3, .pixels = {{0.0, 10.0}, {nan, nan}, {90.0, 10.0}}};
    EXPECT_TRUE(VisiblePieces(grid, {0.0, 0.0}, {100, 100}).empty());
}

}  // namespace
}  // namespace plot
