#include "map/Georeference.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "map/SampleMaps.h"
#include "map/blend/TriangleBlend.h"

namespace map {
namespace {

ReferenceTable TableOf(std::vector<ReferencePoint> points)
{
    ReferenceTable table;
    const auto count = static_cast<std::int16_t>(points.size());
    table.Replace(std::move(points), count);
    return table;
}

// One degree is 1000 pixels, x with the longitude, y with the latitude.
ReferenceTable PlainTable()
{
    return TableOf({{0.0, 0.0, 0.0, 0.0}, {1000.0, 0.0, 1.0, 0.0}, {0.0, 1000.0, 0.0, 1.0}});
}

TEST(GeoToPixel, IsZeroForFewerThanThreePoints)
{
    std::vector<ReferencePoint> points;
    for (int count = 0; count < 3; ++count) {
        const ReferenceTable table = TableOf(points);
        EXPECT_EQ(GeoToPixel(table, {0.5, 0.5}), Pixel{});
        EXPECT_EQ(PixelToGeoEstimate(table, 5, 5), geo::GeoPosition{});
        const FoundPosition found = PixelToGeo(table, 3, 4, kClickTolerance, Refinement::On);
        EXPECT_EQ(found.position, geo::GeoPosition{});
        EXPECT_EQ(found.error, 5.0);
        points.push_back({100.0 * count, 30.0, 1.0 * count, 2.0});
    }
}

TEST(GeoToPixel, LimitsTheAxesDifferently)
{
    const ReferenceTable table = PlainTable();
    const double nearest = 1e-9;
    const struct {
        geo::GeoPosition position;
        Pixel pixel;
    } cases[] = {
        {{0.0, 40.0}, {32767.0, 0.0}},         {{0.0, -40.0}, {-32768.0, 0.0}},
        {{40.0, 0.0}, {0.0, 32767.0}},         {{-40.0, 0.0}, {0.0, -32768.0}},
        {{32.7675, 0.25}, {250.0, 32767.0}},   {{0.25, 32.7675}, {32767.5, 250.0}},
        {{-32.7675, 0.25}, {250.0, -32768.0}}, {{0.25, -32.7675}, {-32767.5, 250.0}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.position.latitude << '/' << c.position.longitude);
        const Pixel pixel = GeoToPixel(table, c.position);
        EXPECT_NEAR(pixel.x, c.pixel.x, nearest);
        EXPECT_NEAR(pixel.y, c.pixel.y, nearest);
        std::vector<Pixel> many(1);
        GeoToPixel(table, std::vector{c.position}, many);
        EXPECT_EQ(many[0], pixel);
    }
}

TEST(GeoToPixel, ConvertsManyPositionsLikeOne)
{
    Random random(31);
    for (const int count : {0, 3, 4, 5, 17, 50}) {
        const SampleMap map = ScannedSheet(random, count == 0 ? 3 : count);
        const ReferenceTable table = count == 0 ? ReferenceTable() : TableOf(map.points);
        for (const std::size_t positionCount : {0U, 1U, 3U, 4U, 9U}) {
            std::vector<geo::GeoPosition> positions;
            for (std::size_t i = 0; i < positionCount; ++i) {
                positions.push_back(PositionAround(random, map));
            }
            std::vector<Pixel> pixels(positionCount);
            GeoToPixel(table, positions, pixels);
            for (std::size_t i = 0; i < positionCount; ++i) {
                const Pixel one = GeoToPixel(table, positions[i]);
                EXPECT_NEAR(pixels[i].x, one.x, 1e-7);
                EXPECT_NEAR(pixels[i].y, one.y, 1e-7);
            }
        }
    }
}

TEST(KnownPosition, TellsNoneFromZero)
{
    EXPECT_EQ(KnownPosition(PlainTable(), 0, 0), geo::GeoPosition{});
    EXPECT_EQ(KnownPosition(ReferenceTable(), 0, 0), std::nullopt);
    const ReferenceTable line =
        TableOf({{0.0, 0.0, 0.0, 0.0}, {10.0, 10.0, 1.0, 1.0}, {20.0, 20.0, 2.0, 2.0}});
    EXPECT_EQ(KnownPosition(line, 10, 10), std::nullopt);
    for (const Refinement refinement : {Refinement::On, Refinement::Off}) {
        EXPECT_TRUE(GivesPosition(PlainTable(), 0, 0, refinement));
        EXPECT_FALSE(GivesPosition(ReferenceTable(), 0, 0, refinement));
        EXPECT_FALSE(GivesPosition(line, 10, 10, refinement));
    }
}

// Every rotation is parallel to its base there: CP to AB, AP to BC, and CA is vertical.
TEST(GivesPosition, WhereTheEstimateHasNoneTheSearchMay)
{
    const ReferenceTable table =
        TableOf({{500.0, 0.0, 10.5, 49.0}, {0.0, 500.0, 10.0, 48.5}, {500.0, 1000.0, 10.5, 48.0}});
    ASSERT_EQ(KnownPosition(table, 1000, 500), std::nullopt);
    EXPECT_FALSE(GivesPosition(table, 1000, 500, Refinement::Off));
    EXPECT_TRUE(GivesPosition(table, 1000, 500, Refinement::On));
    EXPECT_NEAR(PixelToGeo(table, 1000, 500, kClickTolerance, Refinement::On).position.longitude,
                11.0, 1e-5);
}

TEST(PixelToGeo, IsTheEstimateWithoutRefinement)
{
    Random random(32);
    for (int i = 0; i < 100; ++i) {
        const SampleMap map = ScannedSheet(random, 4 + i % 8);
        const ReferenceTable table = TableOf(map.points);
        const FoundPosition found = PixelToGeo(table, 250, 300, kClickTolerance, Refinement::Off);
        EXPECT_EQ(found.position, PixelToGeoEstimate(table, 250, 300));
        const Pixel drawn = GeoToPixel(table, found.position);
        EXPECT_EQ(found.error, Distance(drawn, {250.0, 300.0}));
    }
}

// The search with every evaluation made, as the reference.
FoundPosition SearchedAtLength(const ReferenceTable& table, Pixel target, double tolerance)
{
    geo::GeoPosition at = table.Inverse().At(target);
    const auto errorOf = [&](geo::GeoPosition position) {
        const Pixel pixel = GeoToPixel(table, position);
        return Distance(pixel, target);
    };
    double best = errorOf(at);
    double step = 0.1;
    for (int round = 0; round <= 1000; ++round) {
        bool improved = false;
        for (int s = -1; s <= 1; ++s) {
            for (double* const coordinate : {&at.latitude, &at.longitude}) {
                const double before = *coordinate;
                *coordinate += s * step;
                const double error = errorOf(at);
                if (error < best) {
                    best = error;
                    improved = true;
                    if (error < tolerance) {
                        return {at, best};
                    }
                } else {
                    *coordinate = before;
                }
            }
        }
        step = improved ? step * 2.0 : step / 2.0;
    }
    return {at, best};
}

TEST(PixelToGeo, SearchesStepByStep)
{
    Random random(33);
    for (int i = 0; i < 300; ++i) {
        const SampleMap map = ScannedSheet(random, 3 + i % 8);
        const ReferenceTable table = TableOf(map.points);
        const auto x = static_cast<std::int32_t>(Between(random, -100.0, map.size.width + 100.0));
        const auto y = static_cast<std::int32_t>(Between(random, -100.0, map.size.height + 100.0));
        // Tolerance 0 is never reached, so that the early end is tried too.
        const double tolerance = i % 3 == 0 ? 0.0 : kClickTolerance;
        const FoundPosition found = PixelToGeo(table, x, y, tolerance, Refinement::On);
        const FoundPosition expected =
            SearchedAtLength(table, {static_cast<double>(x), static_cast<double>(y)}, tolerance);
        EXPECT_EQ(found.position, expected.position);
        EXPECT_EQ(found.error, expected.error);
    }
}

TEST(PixelToGeo, EndsWithinTheToleranceForNearlyAllClicks)
{
    Random random(34);
    int clicks = 0;
    int within = 0;
    for (int i = 0; i < 2000; ++i) {
        const SampleMap map = ScannedSheet(random, 3 + i % 20);
        const ReferenceTable table = TableOf(map.points);
        for (int click = 0; click < 2; ++click) {
            const auto x = static_cast<std::int32_t>(Between(random, 0.0, map.size.width));
            const auto y = static_cast<std::int32_t>(Between(random, 0.0, map.size.height));
            const FoundPosition found = PixelToGeo(table, x, y, kClickTolerance, Refinement::On);
            ++clicks;
            within += found.error < kClickTolerance ? 1 : 0;
        }
    }
    RecordProperty("within", within);
    EXPECT_GE(within, clicks * 99 / 100) << within << " of " << clicks;
}

TEST(CanBeGeoreferenced, EndsAtSixteenBits)
{
    EXPECT_TRUE(CanBeGeoreferenced({.width = 32767, .height = 32767}));
    EXPECT_TRUE(CanBeGeoreferenced({.width = 1, .height = 1}));
    EXPECT_FALSE(CanBeGeoreferenced({.width = 32768, .height = 1}));
    EXPECT_FALSE(CanBeGeoreferenced({.width = 1, .height = 32768}));
    EXPECT_FALSE(CanBeGeoreferenced({.width = 0, .height = 5}));
}

TEST(CornerToGeo, TakesTheCornersOfTheImage)
{
    const ReferenceTable table = PlainTable();
    const ImageSize size = {.width = 2000, .height = 500};
    const struct {
        int i, j;
        geo::GeoPosition position;
    } cases[] = {{0, 0, {0.0, 0.0}}, {0, 1, {0.5, 0.0}}, {1, 0, {0.0, 2.0}}, {1, 1, {0.5, 2.0}}};
    for (const auto& c : cases) {
        const FoundPosition found = CornerToGeo(table, size, c.i, c.j, Refinement::On);
        EXPECT_NEAR(found.position.latitude, c.position.latitude, 2e-6);
        EXPECT_NEAR(found.position.longitude, c.position.longitude, 2e-6);
        EXPECT_LT(found.error, kClickTolerance);
    }
}

TEST(GeoToPixel, ReproducesThreePoints)
{
    const ReferenceTable table = TableOf(
        {{100.0, 400.0, 8.0, 48.0}, {900.0, 410.0, 10.0, 48.25}, {420.0, 50.0, 8.75, 49.5}});
    for (const ReferencePoint& point : table.Points()) {
        const Pixel pixel = GeoToPixel(table, {point.Latitude, point.Longitude});
        EXPECT_NEAR(pixel.x, point.X, 1e-9);
        EXPECT_NEAR(pixel.y, point.Y, 1e-9);
    }
    const Pixel outside = GeoToPixel(table, {45.75, 12.5});
    EXPECT_NEAR(outside.x, 1860.0, 1e-8);
    EXPECT_NEAR(outside.y, 1130.0, 1e-8);
}

}  // namespace
}  // namespace map
