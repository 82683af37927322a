#include "plot/LineClip.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace plot {
namespace {

constexpr SurfaceSize kSurface{800, 600};

TEST(ClipLine, LeavesALineOnTheSurfaceAsItIs)
{
    const Line line{{0.3, 599.7}, {799.1, 0.1}};
    EXPECT_EQ(ClipLine(line, kSurface), line);
}

TEST(ClipLine, CutsWhatIsFarAway)
{
    const std::optional<Line> cut = ClipLine({{-1e9, 300.0}, {1e9, 300.0}}, kSurface);
    ASSERT_TRUE(cut.has_value());
    EXPECT_NEAR(cut->from.x, -8.0, 1e-6);
    EXPECT_NEAR(cut->to.x, 808.0, 1e-6);
    EXPECT_EQ(cut->from.y, 300.0);
    EXPECT_EQ(cut->to.y, 300.0);
}

TEST(ClipLine, KeepsTheDirection)
{
    const Line line{{400.0, 300.0}, {400.0 + 3e6, 300.0 - 1e6}};
    const std::optional<Line> cut = ClipLine(line, kSurface);
    ASSERT_TRUE(cut.has_value());
    EXPECT_EQ(cut->from, line.from);
    EXPECT_NEAR((cut->to.x - 400.0) / (300.0 - cut->to.y), 3.0, 1e-9);
}

TEST(ClipLine, DropsWhatDoesNotMeetTheSurface)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Line& line :
         {Line{{-100.0, 0.0}, {-20.0, 600.0}}, Line{{0.0, 700.0}, {800.0, 650.0}},
          Line{{-500.0, 100.0}, {100.0, -500.0}}, Line{{-9.0, 5.0}, {-9.0, 9.0}},
          Line{{nan, 0.0}, {1.0, 1.0}}, Line{{0.0, 0.0}, {infinity, 1.0}}}) {
        EXPECT_FALSE(ClipLine(line, kSurface).has_value());
    }
}

TEST(ClipLine, PointOnTheSurfaceStays)
{
    const Line point{{5.0, 5.0}, {5.0, 5.0}};
    EXPECT_EQ(ClipLine(point, kSurface), point);
}

}  // namespace
}  // namespace plot
