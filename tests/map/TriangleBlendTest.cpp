#include "map/TriangleBlend.h"

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
        const double longitude = 8.0 + 0.37 * (i % 3) + 0.05 * i;
        const double latitude = 48.0 + 0.29 * (i / 3) - 0.04 * (i % 4);
        points.push_back({900.0 * (longitude - 8.0) + 40.0 * latitude,
                          700.0 * (49.0 - latitude) + 11.0 * longitude, longitude, latitude});
    }
    const Pixel pixel = TriangleBlendToPixel(points, {48.123, 8.321});
    EXPECT_NEAR(pixel.x, 900.0 * 0.321 + 40.0 * 48.123, 1e-8);
    EXPECT_NEAR(pixel.y, 700.0 * 0.877 + 11.0 * 8.321, 1e-8);
}

TEST(TriangleBlend, WeighsTheFirstVertexOnTheWayBack)
{
    // The mid-edges of a four-corner map whose lower right corner is off: rotations over vertical
    // bases and along the edge are left out. By hand from the two triangles that remain.
    const ReferencePoint corners[] = {{0.0, 0.0, 10.0, 50.0},
                                      {0.0, 100.0, 10.0, 49.0},
                                      {200.0, 0.0, 12.0, 50.0},
                                      {200.0, 100.0, 12.2, 49.0}};
    const geo::GeoPosition top = TriangleBlendToGeo(corners, {100.0, 0.0});
    EXPECT_NEAR(top.latitude, 50.0, 1e-12);
    EXPECT_GT(top.longitude, 10.9);
    EXPECT_LT(top.longitude, 11.1);
}

TEST(TriangleBlend, CountsPointsInALineAsNone)
{
    std::vector<ReferencePoint> points;
    for (int i = 0; i < 4; ++i) {
        points.push_back({10.0 * i, 20.0 * i, 8.0 + 0.1 * i, 48.0 + 0.1 * i});
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
