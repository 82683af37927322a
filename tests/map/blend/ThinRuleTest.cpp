// The squared areas were once those of Heron's formula, and a thin triangle counted as none. What
// that gave on the maps that people calibrate still holds.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "base/Rounding.h"
#include "map/SampleMaps.h"
#include "map/blend/ForwardBlend.h"
#include "map/blend/InverseBlend.h"

namespace map {
namespace {

struct Corner {
    double x, y, u, v;
};

double Side(const Corner& a, const Corner& b)
{
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y));
}

double OldAreaSquared(const Corner& a, const Corner& b, const Corner& c)
{
    const double sides[] = {Side(b, c), Side(a, c), Side(a, b)};
    const double s = (sides[0] + sides[1] + sides[2]) / 2.0;
    const double squared = s * (s - sides[0]) * (s - sides[1]) * (s - sides[2]);
    const double longest = *std::max_element(std::begin(sides), std::end(sides));
    return squared < 1e-12 * longest * longest * longest * longest ? 0.0 : squared;
}

double Weight(const Corner& a, double x, double y)
{
    return 1.0 / std::max((a.x - x) * (a.x - x) + (a.y - y) * (a.y - y), 1e-40);
}

// The blend at x/y, in either direction: onward with the weights of all three corners.
Pixel OldBlend(const std::vector<Corner>& corners, double x, double y, bool onward)
{
    double weights = 0.0;
    Pixel sum;
    const auto addRotation = [&](const Corner& a, const Corner& b, const Corner& c, double area2) {
        if (a.x == b.x || (x - c.x) * (b.y - a.y) == (y - c.y) * (b.x - a.x)) {
            return;
        }
        const double weight =
            area2 * Weight(a, x, y) * (onward ? Weight(b, x, y) * Weight(c, x, y) : 1.0);
        const double cross = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
        const double ofB = ((x - a.x) * (c.y - a.y) - (y - a.y) * (c.x - a.x)) / cross;
        const double ofC = ((b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x)) / cross;
        weights += weight;
        sum.x += weight * (a.u + ofB * (b.u - a.u) + ofC * (c.u - a.u));
        sum.y += weight * (a.v + ofB * (b.v - a.v) + ofC * (c.v - a.v));
    };
    for (std::size_t i = 0; i < corners.size(); ++i) {
        for (std::size_t j = i + 1; j < corners.size(); ++j) {
            for (std::size_t k = j + 1; k < corners.size(); ++k) {
                const Corner& a = corners[i];
                const Corner& b = corners[j];
                const Corner& c = corners[k];
                if (const double area2 = OldAreaSquared(a, b, c); area2 != 0.0) {
                    addRotation(b, c, a, area2);
                    addRotation(c, a, b, area2);
                    addRotation(a, b, c, area2);
                }
            }
        }
    }
    return {.x = sum.x / weights, .y = sum.y / weights};
}

double SixDecimals(double degrees)
{
    return base::RoundHalfEven(degrees * 1e6) / 1e6;
}

// Grids of 3x3 to 7x7 at uneven spacings, typed with six decimals and clicked on whole pixels, and
// scattered points.
std::vector<SampleMap> SaneMaps()
{
    std::vector<SampleMap> maps;
    Random random(31);
    for (const int lines : {3, 4, 5, 6, 7}) {
        for (const double spacing : {0.1, 1.0 / 6.0, 1.0 / 3.0, 0.7}) {
            SampleMap map = PrintedGrid(lines, lines, spacing, 8.2, 48.1);
            const double turn = Between(random, -0.05, 0.05);
            for (ReferencePoint& point : map.points) {
                const double east = point.Longitude - 8.2;
                const double north = point.Latitude - 48.1;
                point.Longitude = SixDecimals(8.2 + east + turn * north);
                point.Latitude = SixDecimals(48.1 + north - turn * east);
            }
            maps.push_back(map);
        }
        maps.push_back(ScannedSheet(random, lines * lines));
    }
    return maps;
}

TEST(ThinRule, MovesNoPositionOfASaneMapByAThousandthOfAPixel)
{
    Random random(32);
    double most = 0.0;
    for (const SampleMap& map : SaneMaps()) {
        std::vector<Corner> corners;
        for (const ReferencePoint& p : map.points) {
            corners.push_back({p.Longitude, p.Latitude, p.X, p.Y});
        }
        ForwardBlend blend;
        blend.Prepare(map.points);
        for (int i = 0; i < 20; ++i) {
            const geo::GeoPosition position = PositionAround(random, map);
            const Pixel old = OldBlend(corners, position.longitude, position.latitude, true);
            most = std::max(most, Distance(blend.At(position), old));
        }
    }
    RecordProperty("most", std::to_string(most));
    EXPECT_LE(most, 1e-3);
}

TEST(ThinRule, MovesNoPixelOfASaneMapByAThousandthOfItsSize)
{
    Random random(33);
    double most = 0.0;
    for (const SampleMap& map : SaneMaps()) {
        std::vector<Corner> corners;
        for (const ReferencePoint& p : map.points) {
            corners.push_back({p.X, p.Y, p.Longitude, p.Latitude});
        }
        const double degreesPerPixel =
            std::fabs(map.points.back().Latitude - map.points.front().Latitude) / map.size.height;
        InverseBlend blend;
        blend.Prepare(map.points);
        for (int i = 0; i < 20; ++i) {
            const Pixel pixel = {std::floor(Between(random, 0.0, map.size.width)),
                                 std::floor(Between(random, 0.0, map.size.height))};
            const Pixel old = OldBlend(corners, pixel.x, pixel.y, false);
            const geo::GeoPosition found = blend.At(pixel);
            most =
                std::max(most, Distance({found.longitude, found.latitude}, old) / degreesPerPixel);
        }
    }
    RecordProperty("most", std::to_string(most));
    EXPECT_LE(most, 1e-3);
}

}  // namespace
}  // namespace map
