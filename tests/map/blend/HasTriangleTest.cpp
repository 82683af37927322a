#include "map/blend/HasTriangle.h"

#include <vector>

#include <gtest/gtest.h>

namespace map {
namespace {

TEST(IsThin, BelowATrillionthOfTheLongestSide)
{
    // Base 1, height h: h² / 4 against 1e-12.
    EXPECT_TRUE(IsThin({0.0, 0.0}, {1.0, 0.0}, {0.5, 1.9e-6}));
    EXPECT_FALSE(IsThin({0.0, 0.0}, {1.0, 0.0}, {0.5, 2.1e-6}));
    // The same triangles a thousand times as large.
    EXPECT_TRUE(IsThin({0.0, 0.0}, {1e3, 0.0}, {500.0, 1.9e-3}));
    EXPECT_FALSE(IsThin({0.0, 0.0}, {1e3, 0.0}, {500.0, 2.1e-3}));
    // Three points of a printed grid line, collinear but for rounding.
    EXPECT_TRUE(IsThin({8.1, 48.1}, {8.2, 48.2}, {8.3, 48.3}));
    EXPECT_TRUE(IsThin({7.0, 7.0}, {7.0, 7.0}, {7.0, 7.0}));
}

TEST(HasTriangle, NeedsOneThatIsNotThin)
{
    const PlanePoint points[] = {{0.0, 0.0}, {1.0, 1e-7}, {2.0, 0.0}, {0.0, 1.0}};
    EXPECT_FALSE(HasTriangle({}));
    EXPECT_FALSE(HasTriangle(std::span(points).first(2)));
    EXPECT_FALSE(HasTriangle(std::span(points).first(3)));
    EXPECT_TRUE(HasTriangle(points));
}

TEST(HasTriangle, FindsASmallOneAmongThePointsOfALine)
{
    constexpr int kCount = 20;
    std::vector<PlanePoint> points;
    points.reserve(kCount + 2);
    for (int i = 0; i < kCount; ++i) {
        points.push_back({0.1 * i, 0.3 * i});
    }
    EXPECT_FALSE(HasTriangle(points));
    points.push_back({0.1, 0.3 + 1e-7});
    points.push_back({0.1 + 1e-7, 0.3});
    EXPECT_TRUE(HasTriangle(points));
}

TEST(HasTriangle, SeesALineOfAnyNumberOfPoints)
{
    std::vector<PlanePoint> points;
    for (int i = 0; i < 1000; ++i) {
        points.push_back({0.1 * i, 0.3 * i});
        if (i % 50 == 0) {
            EXPECT_FALSE(HasTriangle(points)) << i;
        }
    }
    points.push_back({0.0, 5.0});
    EXPECT_TRUE(HasTriangle(points));
}

}  // namespace
}  // namespace map
