#include "map/blend/ForwardBlend.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <set>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "map/SampleMaps.h"
#include "map/blend/BlendAgreement.h"
#include "map/blend/ExactBlend.h"
#include "map/blend/ForwardSums.h"

namespace map {
namespace {

std::vector<geo::GeoPosition> PositionsOf(const SampleMap& map)
{
    std::vector<geo::GeoPosition> positions;
    for (const ReferencePoint& point : map.points) {
        positions.push_back({.latitude = point.Latitude, .longitude = point.Longitude});
    }
    return positions;
}

TEST(ForwardBlend, AgreesWithTheTrianglesOnScannedSheets)
{
    Random random(11);
    std::set<std::size_t> sizes;
    for (int table = 0; table < SheetTables(); ++table) {
        const SampleMap map = ScannedSheet(random, TableSize(table));
        sizes.insert(map.points.size());
        std::vector<geo::GeoPosition> positions = map.edges;
        positions.push_back(PositionInside(random, map));
        positions.push_back(PositionAround(random, map));
        ASSERT_TRUE(ForwardAgrees(map.points, positions)) << "table " << table;
    }
    EXPECT_EQ(sizes.size(), 48U) << "every size from 3 to 50";
}

TEST(ForwardBlend, AgreesWithTheTrianglesOnPrintedGrids)
{
    Random random(12);
    for (const int size : {3, 4, 5, 6, 7}) {
        for (const double spacing : {0.1, 0.2, 0.25, 0.5, 1.0}) {
            const SampleMap map = PrintedGrid(size, size, spacing, 8.2, 48.1);
            SCOPED_TRACE(testing::Message() << size << " lines " << spacing << " apart");
            std::vector<geo::GeoPosition> positions = {{0.0, 0.0}};
            for (int i = 0; i < 5; ++i) {
                positions.push_back(PositionAround(random, map));
            }
            // On grid lines, on their middles, and on the diagonals.
            const ReferencePoint& corner = map.points.front();
            for (const double part : {0.25, 0.5, 1.5, 2.0, 2.5}) {
                const double off = part * spacing;
                positions.push_back({corner.Latitude, corner.Longitude + off});
                positions.push_back({corner.Latitude + off, corner.Longitude});
                positions.push_back({corner.Latitude + off, corner.Longitude + off});
                positions.push_back({corner.Latitude + 2.0 * off, corner.Longitude + off});
            }
            EXPECT_TRUE(ForwardAgrees(map.points, positions));
        }
    }
}

TEST(ForwardBlend, HitsTheReferencePoints)
{
    Random random(13);
    for (int table = 0; table < 300; ++table) {
        const SampleMap map = table % 3 == 0 ? PrintedGrid(4, 5, 0.1, 8.2, 48.1)
                                             : ScannedSheet(random, 3 + table % 20);
        ForwardBlend blend;
        blend.Prepare(map.points);
        for (const ReferencePoint& point : map.points) {
            const Pixel pixel = blend.At({point.Latitude, point.Longitude});
            EXPECT_NEAR(pixel.x, point.X, 1e-9);
            EXPECT_NEAR(pixel.y, point.Y, 1e-9);
        }
        EXPECT_TRUE(ForwardAgrees(map.points, PositionsOf(map)));
    }
}

TEST(ForwardBlend, AgreesCloseToAReferencePoint)
{
    Random random(14);
    for (int table = 0; table < 200; ++table) {
        const SampleMap map = ScannedSheet(random, 5 + table % 10);
        const ReferencePoint& point = map.points[2];
        std::vector<geo::GeoPosition> positions;
        for (const double off : {1e-3, 1e-6, 1e-9, 1e-12, 1e-14}) {
            positions.push_back({point.Latitude + off, point.Longitude - off});
            positions.push_back({point.Latitude, point.Longitude + off});
        }
        EXPECT_TRUE(ForwardAgrees(map.points, positions));
    }
}

TEST(ForwardBlend, LeavesOutEveryRotationThatTheTrianglesLeaveOut)
{
    // Exact coordinates, so that determinants vanish exactly; every second point is bent, so that
    // a rotation more or less can be seen.
    std::vector<ReferencePoint> points;
    for (int i = 0; i < 12; ++i) {
        const int column = i % 4;
        const int row = i / 4;
        const double x = column;
        const double y = row;
        points.push_back({100.0 * x + 7.0 * (i % 3), 300.0 - 100.0 * y + 5.0 * (i % 5),
                          8.0 + x / 4.0, 48.0 + y / 4.0});
    }
    std::vector<geo::GeoPosition> positions;
    for (int x = -4; x <= 20; ++x) {
        for (int y = -4; y <= 16; ++y) {
            positions.push_back({48.0 + y / 16.0, 8.0 + x / 16.0});
        }
    }
    EXPECT_TRUE(ForwardAgrees(points, positions));
    EXPECT_TRUE(ForwardAgrees(std::span(points).first(5), positions));
    EXPECT_TRUE(ForwardAgrees(std::span(points).first(4), positions));
}

TEST(ForwardBlend, LeavesOutAllRotationsOfALoneTriangle)
{
    // A vertical base, and lines from the other two corners parallel to the sides opposite.
    const ReferencePoint points[] = {
        {0.0, 100.0, 0.0, 0.0}, {0.0, 0.0, 0.0, 1.0}, {100.0, 50.0, 1.0, 0.5}};
    ForwardBlend blend;
    blend.Prepare(points);
    EXPECT_EQ(blend.At({0.5, -1.0}), (Pixel{0.0, 0.0}));
    EXPECT_EQ(blend.At({0.5, 1.0}), (Pixel{100.0, 50.0}));
    EXPECT_TRUE(ForwardAgrees(points, std::vector<geo::GeoPosition>{{0.5, -1.0}, {0.6, -1.0}}));
}

TEST(ForwardBlend, AgreesOnHostileTables)
{
    Random random(15);
    const SampleMap sheet = ScannedSheet(random, 8);
    std::vector<ReferencePoint> coincident = sheet.points;
    coincident.push_back(coincident[0]);
    coincident.push_back(coincident[1]);
    coincident.back().X += 40.0;
    std::vector<ReferencePoint> column = sheet.points;
    for (std::size_t i = 0; i < 5; ++i) {
        column[i].Longitude = column[0].Longitude;
    }
    std::vector<ReferencePoint> nearLine = sheet.points;
    for (std::size_t i = 0; i < 7; ++i) {
        const auto along = static_cast<double>(i);
        nearLine[i].Longitude = 8.0 + 0.1 * along;
        nearLine[i].Latitude = 48.0 + 0.05 * along + 1e-5 * static_cast<double>(i % 3);
    }
    nearLine[7].Longitude = 8.2;
    nearLine[7].Latitude = 48.9;
    std::vector<ReferencePoint> strip = nearLine;
    strip.pop_back();
    for (const auto& points : {coincident, column, nearLine, strip}) {
        const SampleMap map = {.size = sheet.size, .points = points};
        std::vector<geo::GeoPosition> positions = PositionsOf(map);
        for (int i = 0; i < 50; ++i) {
            positions.push_back(PositionAround(random, map));
        }
        EXPECT_TRUE(ForwardAgrees(points, positions));
    }
}

TEST(ForwardBlend, IsZeroForAStraightLine)
{
    for (const int count : {3, 5, 30, 300}) {
        std::vector<ReferencePoint> points;
        points.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            points.push_back({10.0 * i, 20.0 * i, 8.0 + 0.1 * i, 48.0 + 0.07 * i});
        }
        ForwardBlend blend;
        blend.Prepare(points);
        EXPECT_EQ(blend.At({48.1, 8.3}), Pixel{}) << count;
    }
}

TEST(ForwardBlend, IsZeroForOneColumnAndOneRow)
{
    std::vector<ReferencePoint> column;
    std::vector<ReferencePoint> row;
    for (int i = 0; i < 6; ++i) {
        const double pixel = 100.0 * i * i;
        column.push_back({pixel, 50.0 - pixel, 8.1, 48.0 + 0.1 * i});
        row.push_back({pixel, 50.0 - pixel, 8.1 + 0.1 * i, 48.3});
    }
    for (const auto& points : {column, row}) {
        ForwardBlend blend;
        blend.Prepare(points);
        EXPECT_EQ(blend.At({48.2, 8.2}), Pixel{});
        EXPECT_TRUE(ForwardAgrees(points, std::vector<geo::GeoPosition>{{48.2, 8.2}, {0.0, 0.0}}));
    }
}

TEST(ForwardBlend, StaysExactFarOutside)
{
    Random random(16);
    for (int table = 0; table < 50; ++table) {
        const SampleMap map = ScannedSheet(random, 6 + table % 10);
        ForwardBlend blend;
        blend.Prepare(map.points);
        for (const double off : {-150.0, -20.0, 20.0, 150.0}) {
            const geo::GeoPosition position = {48.0 + off / 3.0, 8.0 + off};
            const Pixel exact = ExactToPixel(map.points, position);
            const Pixel pixel = blend.At(position);
            EXPECT_NEAR(pixel.x, exact.x, 1e-9 * (1.0 + std::fabs(exact.x)));
            EXPECT_NEAR(pixel.y, exact.y, 1e-9 * (1.0 + std::fabs(exact.y)));
        }
    }
}

TEST(ForwardBlend, GivesNoNumberForNoPosition)
{
    Random random(17);
    const SampleMap map = ScannedSheet(random, 9);
    ForwardBlend blend;
    blend.Prepare(map.points);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<geo::GeoPosition> positions = {
        {nan, 8.0}, {48.0, infinity}, {48.0, 8.0}, {48.0, -infinity}, {nan, nan}};
    std::vector<Pixel> pixels(positions.size());
    blend.At(positions, pixels);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        EXPECT_EQ(std::isnan(pixels[i].x), i != 2);
        EXPECT_EQ(std::isnan(blend.At(positions[i]).x), i != 2);
    }
    EXPECT_TRUE(std::isfinite(blend.At({1e308, -1e308}).x));
    EXPECT_TRUE(std::isfinite(blend.At({5e-324, 5e-324}).x));
}

void SurvivesTablesOf(std::span<const double> extremes)
{
    Random random(18);
    std::uniform_int_distribution<std::size_t> pick(0, extremes.size() - 1);
    for (int table = 0; table < 2000; ++table) {
        std::vector<ReferencePoint> points(static_cast<std::size_t>(3 + table % 9));
        for (ReferencePoint& point : points) {
            point = {extremes[pick(random)], extremes[pick(random)], extremes[pick(random)],
                     extremes[pick(random)]};
        }
        ForwardBlend blend;
        blend.Prepare(points);
        std::vector<geo::GeoPosition> positions;
        constexpr std::size_t kPositions = kManySides + 1;
        positions.reserve(kPositions);
        for (std::size_t i = 0; i < kPositions; ++i) {
            positions.push_back({extremes[pick(random)], extremes[pick(random)]});
        }
        std::vector<Pixel> pixels(positions.size());
        blend.At(positions, pixels);
        for (const geo::GeoPosition position : positions) {
            pixels.push_back(blend.At(position));
        }
        for (const Pixel pixel : pixels) {
            ASSERT_TRUE(std::isfinite(pixel.x)) << "table " << table;
            ASSERT_TRUE(std::isfinite(pixel.y)) << "table " << table;
        }
    }
}

TEST(ForwardBlend, SurvivesAnyFiniteTable)
{
    SurvivesTablesOf(std::array{0.0, 1.0, -1e308, 1e308, 5e-324, 1e9, 1e-160, 32767.0, 1e150, 8.5});
}

TEST(ForwardBlend, SurvivesTablesOfTheTiniestAndTheFarthestPlaces)
{
    SurvivesTablesOf(std::array{0.0, 1.0, -1e9, 1e9, 5e-324, 1e-150, 1e-160, 32767.0, 1e-8, 8.5});
}

TEST(ForwardBlend, PreparesTheLargestTableAtOnce)
{
    Random random(19);
    const SampleMap map = ScannedSheet(random, 32767);
    ForwardBlend blend;
    blend.Prepare(map.points);
    const ReferencePoint& point = map.points[500];
    const Pixel pixel = blend.At({point.Latitude, point.Longitude});
    EXPECT_NEAR(pixel.x, point.X, 1e-6);
    EXPECT_NEAR(pixel.y, point.Y, 1e-6);
}

}  // namespace
}  // namespace map
