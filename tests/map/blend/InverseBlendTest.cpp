#include "map/blend/InverseBlend.h"

#include <cmath>
#include <cstddef>
#include <random>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "map/CalibrationFile.h"
#include "map/SampleMaps.h"
#include "map/blend/BlendAgreement.h"

namespace map {
namespace {

std::vector<Pixel> PixelsOf(const SampleMap& map, Random& random)
{
    std::vector<Pixel> pixels = EdgePixels(map.size);
    const auto whole = [&random](std::int32_t length) {
        return static_cast<double>(
            std::uniform_int_distribution<std::int32_t>(-length / 2, length + length / 2)(random));
    };
    for (int i = 0; i < 3; ++i) {
        pixels.push_back({whole(map.size.width), whole(map.size.height)});
    }
    pixels.push_back({map.points[0].X, map.points[0].Y});
    pixels.push_back({map.points[0].X, map.points[1].Y});
    pixels.push_back({map.points[0].X + map.points[1].X - map.points[2].X,
                      map.points[0].Y + map.points[1].Y - map.points[2].Y});
    return pixels;
}

TEST(InverseBlend, AgreesWithTheTrianglesOnScannedSheets)
{
    Random random(21);
    std::set<std::size_t> sizes;
    for (int table = 0; table < SheetTables(); ++table) {
        const SampleMap map = ScannedSheet(random, TableSize(table));
        sizes.insert(map.points.size());
        ASSERT_TRUE(InverseAgrees(map.points, PixelsOf(map, random))) << "table " << table;
    }
    EXPECT_EQ(sizes.size(), 48U) << "every size from 3 to 50";
}

TEST(InverseBlend, AgreesWithTheTrianglesOnPrintedGrids)
{
    Random random(22);
    for (const int size : {3, 4, 5, 6, 7}) {
        const SampleMap map = PrintedGrid(size, size, 0.1, 8.2, 48.1);
        EXPECT_TRUE(InverseAgrees(map.points, PixelsOf(map, random))) << size;
    }
}

TEST(InverseBlend, AgreesOnARegularGridOfPixels)
{
    // Rows, columns and oblique lines everywhere: most pixels leave rotations out.
    std::vector<ReferencePoint> points;
    for (int i = 0; i < 16; ++i) {
        const int x = i % 4;
        const int y = i / 4;
        points.push_back({60.0 * x, 40.0 * y, 8.0 + 0.11 * x + 0.003 * (i % 5),
                          49.0 - 0.07 * y - 0.002 * (i % 3)});
    }
    std::vector<Pixel> pixels;
    for (int x = -60; x <= 240; x += 10) {
        for (int y = -40; y <= 160; y += 10) {
            pixels.push_back({static_cast<double>(x), static_cast<double>(y)});
        }
    }
    for (const std::size_t count : {3U, 4U, 5U, 8U, 16U}) {
        EXPECT_TRUE(InverseAgrees(std::span(points).first(count), pixels)) << count;
    }
}

TEST(InverseBlend, AgreesOnTheFourCornersOfAnImage)
{
    const ImageSize size = {.width = 801, .height = 600};
    const InfBounds bounds = {48.5, 47.9, 11.0, 12.1};
    std::vector<ReferencePoint> points = ReferencesFromInf(bounds, size);
    points.pop_back();
    EXPECT_TRUE(InverseAgrees(points, EdgePixels(size)));
    points[3].Longitude += 0.05;  // no affine map any more
    EXPECT_TRUE(InverseAgrees(points, EdgePixels(size)));
}

TEST(InverseBlend, AgreesOnHostileTables)
{
    Random random(23);
    const SampleMap sheet = ScannedSheet(random, 8);
    std::vector<ReferencePoint> coincident = sheet.points;
    coincident.push_back(coincident[0]);
    coincident.push_back(coincident[1]);
    coincident.back().Longitude += 0.01;
    std::vector<ReferencePoint> column = sheet.points;
    for (std::size_t i = 0; i < 6; ++i) {
        column[i].X = column[0].X;
    }
    std::vector<ReferencePoint> oblique = sheet.points;
    for (std::size_t i = 0; i < 5; ++i) {
        oblique[i].X = 100.0 + 37.0 * static_cast<double>(i);
        oblique[i].Y = 200.0 + 21.0 * static_cast<double>(i);
    }
    std::vector<ReferencePoint> allButOneInAColumn = column;
    allButOneInAColumn.resize(7);
    std::vector<ReferencePoint> nearLine = sheet.points;
    for (std::size_t i = 0; i < nearLine.size(); ++i) {
        nearLine[i].X = 700.0 * static_cast<double>(i);
        nearLine[i].Y = 300.0 * static_cast<double>(i) + static_cast<double>(i % 2);
    }
    for (const auto& points : {coincident, column, oblique, allButOneInAColumn, nearLine}) {
        const SampleMap map = {.size = sheet.size, .points = points};
        std::vector<Pixel> pixels = PixelsOf(map, random);
        for (const ReferencePoint& point : points) {
            pixels.push_back({point.X, point.Y});
        }
        EXPECT_TRUE(InverseAgrees(points, pixels));
    }
}

TEST(InverseBlend, HitsTheReferencePoints)
{
    Random random(24);
    for (int table = 0; table < 300; ++table) {
        const SampleMap map = ScannedSheet(random, 3 + table % 20);
        InverseBlend blend;
        blend.Prepare(map.points);
        for (const ReferencePoint& point : map.points) {
            const geo::GeoPosition position = blend.At({point.X, point.Y});
            EXPECT_NEAR(position.latitude, point.Latitude, 1e-12);
            EXPECT_NEAR(position.longitude, point.Longitude, 1e-12);
        }
    }
}

TEST(InverseBlend, IsZeroForAStraightLine)
{
    for (const int count : {3, 5, 30, 300}) {
        std::vector<ReferencePoint> points;
        points.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            points.push_back({10.0 * i, 20.0 * i, 8.0 + 0.1 * i, 48.0 - 0.07 * i * i});
        }
        InverseBlend blend;
        blend.Prepare(points);
        EXPECT_EQ(blend.At({400.0, 8.0}), geo::GeoPosition{}) << count;
    }
}

TEST(InverseBlend, SurvivesAnyFiniteTable)
{
    Random random(20);
    const double extremes[] = {0.0, 1.0, -1e308, 1e308, 5e-324, 1e9, 1e-160, 32767.0, 1e-155};
    std::uniform_int_distribution<int> pick(0, 8);
    const double columns[] = {0.0, 1.0, 5000.0, 32767.0};
    for (int table = 0; table < 2000; ++table) {
        std::vector<ReferencePoint> points(static_cast<std::size_t>(3 + table % 9));
        for (ReferencePoint& point : points) {
            point = {extremes[pick(random)], extremes[pick(random)], extremes[pick(random)],
                     extremes[pick(random)]};
        }
        InverseBlend blend;
        blend.Prepare(points);
        for (const double x : columns) {
            for (const double y : columns) {
                const geo::GeoPosition position = blend.At({.x = x, .y = y});
                ASSERT_TRUE(std::isfinite(position.latitude)) << "table " << table;
                ASSERT_TRUE(std::isfinite(position.longitude)) << "table " << table;
            }
        }
    }
}

TEST(InverseBlend, PreparesTheLargestTableAtOnce)
{
    Random random(21);
    const SampleMap map = ScannedSheet(random, 32767);
    InverseBlend blend;
    blend.Prepare(map.points);
    const ReferencePoint& point = map.points[500];
    const geo::GeoPosition position = blend.At({.x = point.X, .y = point.Y});
    EXPECT_NEAR(position.latitude, point.Latitude, 1e-6);
    EXPECT_NEAR(position.longitude, point.Longitude, 1e-6);
}

}  // namespace
}  // namespace map
