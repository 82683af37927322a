#include "map/blend/TriangleBlend.h"

#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "map/SampleMaps.h"

namespace map {
namespace {

const ReferencePoint kThree[] = {
    {100.0, 400.0, 8.0, 48.0}, {900.0, 410.0, 10.0, 48.25}, {420.0, 50.0, 8.75, 49.5}};

TEST(TriangleBlend, IsZeroForFewerThanThreePoints)
{
    for (const std::size_t count : {0U, 1U, 2U}) {
        const auto points = std::span(kThree).first(count);
        EXPECT_EQ(TriangleBlendToPixel(points, {48.3, 8.4}), Pixel{}) << count;
        EXPECT_EQ(TriangleBlendToGeo(points, {300.0, 200.0}), geo::GeoPosition{}) << count;
    }
}

TEST(TriangleBlend, IsTheAffineMapOfThreePoints)
{
    for (const ReferencePoint& point : kThree) {
        const Pixel pixel = TriangleBlendToPixel(kThree, {point.Latitude, point.Longitude});
        EXPECT_NEAR(pixel.x, point.X, 1e-9);
        EXPECT_NEAR(pixel.y, point.Y, 1e-9);
        const geo::GeoPosition position = TriangleBlendToGeo(kThree, {point.X, point.Y});
        EXPECT_NEAR(position.latitude, point.Latitude, 1e-12);
        EXPECT_NEAR(position.longitude, point.Longitude, 1e-12);
    }
    // A + 3 (B - A) - 2 (C - A), far outside.
    const Pixel pixel = TriangleBlendToPixel(kThree, {48.0 + 0.75 - 3.0, 8.0 + 6.0 - 1.5});
    EXPECT_NEAR(pixel.x, 100.0 + 2400.0 - 640.0, 1e-9);
    EXPECT_NEAR(pixel.y, 400.0 + 30.0 + 700.0, 1e-9);
    const geo::GeoPosition position = TriangleBlendToGeo(kThree, {1860.0, 1130.0});
    EXPECT_NEAR(position.latitude, 45.75, 1e-11);
    EXPECT_NEAR(position.longitude, 12.5, 1e-11);
}

TEST(TriangleBlend, IsAPlaneThatTheWeightsCannotBend)
{
    std::vector<ReferencePoint> points;
    for (int i = 0; i < 9; ++i) {
        const int row = i / 3;
        const double longitude = 8.0 + 0.37 * (i % 3) + 0.05 * i;
        const double latitude = 48.0 + 0.29 * row - 0.04 * (i % 4);
        points.push_back({900.0 * (longitude - 8.0) + 40.0 * latitude,
                          700.0 * (49.0 - latitude) + 11.0 * longitude, longitude, latitude});
    }
    const Pixel pixel = TriangleBlendToPixel(points, {48.123, 8.321});
    EXPECT_NEAR(pixel.x, 900.0 * 0.321 + 40.0 * 48.123, 1e-8);
    EXPECT_NEAR(pixel.y, 700.0 * 0.877 + 11.0 * 8.321, 1e-8);
}

TEST(TriangleBlend, WeighsTheFirstVertexOnTheWayBack)
{
    // Four corners, the lower right one off. Each triangle has its own longitude at the pixel; the
    // rotations over the left and right edge are left out, and those with the lower edge as the
    // base and an upper corner as the apex.
    const ReferencePoint corners[] = {{0.0, 0.0, 10.0, 50.0},
                                      {0.0, 100.0, 10.0, 49.0},
                                      {200.0, 0.0, 12.0, 50.0},
                                      {200.0, 100.0, 12.2, 49.0}};
    const double i0 = 1.0 / 2500.0;  // by the distance from each corner
    const double i1 = 1.0 / 12500.0;
    const double i2 = 1.0 / 22500.0;
    const double i3 = 1.0 / 32500.0;
    const double of012 = i1 + i2;
    const double of013 = i3;
    const double of023 = i3 + i0;
    const double of123 = i1;
    const double longitude = (10.5 * of012 + 10.55 * of013 + 10.5 * of023 + 10.35 * of123)
                             / (of012 + of013 + of023 + of123);
    const geo::GeoPosition top = TriangleBlendToGeo(corners, {50.0, 0.0});
    EXPECT_NEAR(top.longitude, longitude, 1e-12);
    EXPECT_NEAR(top.latitude, 50.0, 1e-12);
}

TEST(TriangleBlend, CountsPointsInALineAsNone)
{
    std::vector<ReferencePoint> points(4);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto along = static_cast<double>(i);
        points[i] = {10.0 * along, 20.0 * along, 8.0 + 0.1 * along, 48.0 + 0.1 * along};
    }
    EXPECT_EQ(TriangleBlendToPixel(points, {48.05, 8.2}), Pixel{});
    EXPECT_EQ(TriangleBlendToGeo(points, {7.0, 3.0}), geo::GeoPosition{});
}

TEST(TriangleBlend, KeepsStationsOfAPrintedGridOnTheMap)
{
    // Three grid points in a line are collinear but for the rounding of tenths.
    const SampleMap map = PrintedGrid(5, 4, 0.1, 8.2, 48.1);
    Random random(5);
    for (int i = 0; i < 200; ++i) {
        const double longitude = Between(random, 8.2, 8.6);
        const double latitude = Between(random, 48.1, 48.4);
        const Pixel pixel = TriangleBlendToPixel(map.points, {latitude, longitude});
        EXPECT_NEAR(pixel.x, 500.0 + 5000.0 * (longitude - 8.2), 80.0);
        EXPECT_NEAR(pixel.y, map.size.height - 700.0 - 7000.0 * (latitude - 48.1), 80.0);
    }
}

}  // namespace
}  // namespace map
