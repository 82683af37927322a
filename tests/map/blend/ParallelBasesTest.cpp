#include "map/blend/ParallelBases.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace map {
namespace {

TEST(ExactlyParallel, JudgesByTheExactValuesOfTheDoubles)
{
    const struct {
        const char* what;
        PlanePoint p, c, a, b;
        bool parallel;
    } cases[] = {
        {"a row", {5.0, 7.0}, {2.0, 7.0}, {0.0, 1.0}, {9.0, 1.0}, true},
        {"not quite a row",
         {5.0, std::nextafter(7.0, 8.0)},
         {2.0, 7.0},
         {0.0, 1.0},
         {9.0, 1.0},
         false},
        {"oblique pixels", {32767.0, 1.0}, {1.0, 32767.0}, {0.0, 3.0}, {3.0, 0.0}, true},
        {"oblique, one off", {32767.0, 0.0}, {1.0, 32767.0}, {0.0, 3.0}, {3.0, 0.0}, false},
        {"quarters of a degree", {8.5, 48.25}, {8.0, 48.0}, {9.0, 47.0}, {10.0, 47.5}, true},
        {"tenths, which no double holds",
         {8.3, 48.3},
         {8.1, 48.1},
         {9.1, 47.2},
         {9.2, 47.3},
         false},
        {"P on C", {8.1, 48.1}, {8.1, 48.1}, {9.1, 47.2}, {9.4, 47.3}, true},
        {"far apart in size", {1e9, 1.0}, {0.0, 1e-9}, {1e-3, 2e9}, {1e9, 2e9}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(ExactlyParallel(c.p, c.c, c.a, c.b), c.parallel);
    }
}

TEST(ParallelBases, FindsEveryParallelBaseOfWholePixels)
{
    std::mt19937_64 random(1);
    std::uniform_int_distribution<int> pixel(0, 40);
    std::vector<PlanePoint> points(30);
    for (PlanePoint& point : points) {
        point = {static_cast<double>(pixel(random)), static_cast<double>(pixel(random))};
    }
    ParallelBases bases;
    bases.Prepare(points);
    const DirectionFilter filter = bases.Filter();
    for (int dx = -40; dx <= 40; ++dx) {
        for (int dy = -40; dy <= 40; ++dy) {
            if (dx == 0) {
                EXPECT_TRUE(bases.Near(dx, dy).empty()) << "vertical bases are left out anyway";
                continue;
            }
            std::size_t expected = 0;
            for (std::size_t a = 0; a < points.size(); ++a) {
                for (std::size_t b = a + 1; b < points.size(); ++b) {
                    const double baseX = points[b].x - points[a].x;
                    const double baseY = points[b].y - points[a].y;
                    expected += baseX != 0.0 && dx * baseY == dy * baseX ? 1U : 0U;
                }
            }
            const auto near = bases.Near(dx, dy);
            EXPECT_EQ(near.size(), expected) << dx << '/' << dy;
            const double cosine2 =
                1.0 / static_cast<double>(dx * dx + dy * dy) * dx * dx * DirectionFilter::kScale;
            EXPECT_TRUE(expected == 0 || filter.Possible(static_cast<std::int32_t>(cosine2)));
        }
    }
}

TEST(ParallelBases, RulesOutMostOtherDirections)
{
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> degree(0.0, 1.0);
    std::vector<PlanePoint> points(50);
    for (PlanePoint& point : points) {
        point = {degree(random), degree(random)};
    }
    ParallelBases bases;
    bases.Prepare(points);
    int possible = 0;
    for (int i = 0; i < 10000; ++i) {
        const auto step = static_cast<std::int32_t>(degree(random) * DirectionFilter::kScale);
        possible += bases.Filter().Possible(step) ? 1 : 0;
    }
    EXPECT_LT(possible, 100);
}

TEST(ParallelBases, IsEmptyForMorePointsThanAreTreatedOneByOne)
{
    std::vector<PlanePoint> points(kExactPoints + 1);
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {static_cast<double>(i), static_cast<double>(i * i)};
    }
    ParallelBases bases;
    bases.Prepare(points);
    EXPECT_TRUE(bases.All().empty());
    EXPECT_FALSE(bases.Filter().Possible(12345));
    bases.Prepare(std::span(points).first(kExactPoints));
    EXPECT_EQ(bases.All().size(), kExactPoints * (kExactPoints - 1) / 2);
}

}  // namespace
}  // namespace map
