#include "map/ReferenceTable.h"

#include <vector>

#include <gtest/gtest.h>

#include "map/Georeference.h"

namespace map {
namespace {

ReferenceTable TableOf(std::initializer_list<ReferencePoint> points)
{
    ReferenceTable table;
    table.Replace(points, static_cast<std::int16_t>(points.size()));
    return table;
}

TEST(ReferenceTable, StartsEmptyWithTheReferenceModeOff)
{
    const ReferenceTable table{};
    EXPECT_EQ(table.RefCount(), 0);
    EXPECT_TRUE(table.Entries().empty());
    EXPECT_FALSE(table.ReferenceMode());
}

TEST(AddStation2Reference, TiesTheClickToStation2)
{
    ReferenceTable table;
    EXPECT_EQ(table.AddStation2Reference(120.0, 80.0, {48.5, 11.25}), AddResult::Added);
    EXPECT_EQ(table.RefCount(), 1);
    EXPECT_TRUE(table.ReferenceMode());
    EXPECT_EQ(table.Points()[0], (ReferencePoint{120.0, 80.0, 11.25, 48.5}));
}

TEST(AddStation2Reference, RefusesAUsedPixelAndAUsedPosition)
{
    ReferenceTable table;
    table.AddStation2Reference(120.0, 80.0, {48.5, 11.25});
    const struct {
        double x, y;
        geo::GeoPosition station2;
        AddResult result;
    } cases[] = {
        {120.0, 80.0, {1.0, 2.0}, AddResult::Duplicate},
        {1.0, 2.0, {48.5, 11.25}, AddResult::Duplicate},
        {120.0, 81.0, {48.5, 11.26}, AddResult::Added},  // one coordinate may recur
        {121.0, 80.0, {48.6, 11.25}, AddResult::Added},
    };
    for (const auto& c : cases) {
        const std::vector<ReferencePoint> before(table.Entries().begin(), table.Entries().end());
        EXPECT_EQ(table.AddStation2Reference(c.x, c.y, c.station2), c.result);
        if (c.result == AddResult::Duplicate) {
            EXPECT_EQ(std::vector(table.Entries().begin(), table.Entries().end()), before);
        }
    }
    EXPECT_EQ(table.RefCount(), 3);
}

TEST(AddStation2Reference, LooksAtValidEntriesOnly)
{
    ReferenceTable table = TableOf({{1.0, 2.0, 3.0, 4.0}});
    table.ClearLastReference();
    EXPECT_EQ(table.AddStation2Reference(1.0, 2.0, {4.0, 3.0}), AddResult::Added);
}

TEST(AddStation2Reference, SetsTheArrayToTheValidEntries)
{
    ReferenceTable table =
        TableOf({{1.0, 1.0, 1.0, 1.0}, {2.0, 2.0, 2.0, 2.0}, {3.0, 3.0, 3.0, 3.0}});
    table.DeleteNearestReference(1.0, 1.0);
    table.DeleteNearestReference(2.0, 2.0);
    EXPECT_EQ(table.RefCount(), 1);
    EXPECT_EQ(table.Entries().size(), 3U) << "deleting does not shorten the array";
    table.AddStation2Reference(9.0, 9.0, {9.0, 9.0});
    EXPECT_EQ(table.RefCount(), 2);
    EXPECT_EQ(table.Entries().size(), 2U);
}

TEST(AddStation2Reference, EndsAtTheLimitOfTheCount)
{
    std::vector<ReferencePoint> entries(32767);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto number = static_cast<double>(i);
        entries[i] = {number, 0.0, number, 0.0};
    }
    ReferenceTable table;
    table.Replace(entries, 32767);
    EXPECT_EQ(table.AddStation2Reference(1.0, 1.0, {1.0, 1.5}), AddResult::Full);
    EXPECT_EQ(table.RefCount(), 32767);
}

TEST(DeleteNearestReference, RemovesTheFirstOfEquallyNearOnes)
{
    ReferenceTable table =
        TableOf({{90.0, 0.0, 1.0, 1.0}, {10.0, 0.0, 2.0, 2.0}, {-10.0, 0.0, 3.0, 3.0}});
    EXPECT_TRUE(table.DeleteNearestReference(0.0, 0.0));
    ASSERT_EQ(table.RefCount(), 2);
    EXPECT_EQ(table.Points()[0].Longitude, 1.0);
    EXPECT_EQ(table.Points()[1].Longitude, 3.0);
    EXPECT_EQ(table.Entries()[2].Longitude, 3.0) << "later entries moved, the last one stays";
}

TEST(DeleteNearestReference, KnowsNoMaximumDistance)
{
    ReferenceTable table = TableOf({{1e25, 0.0, 1.0, 1.0}});
    EXPECT_TRUE(table.DeleteNearestReference(0.0, 0.0));
    EXPECT_EQ(table.RefCount(), 0);
    EXPECT_TRUE(table.ReferenceMode());
    EXPECT_FALSE(table.DeleteNearestReference(0.0, 0.0));
}

TEST(ClearAllReferences, LeavesOneEmptyEntryAndTheModeOff)
{
    ReferenceTable table = TableOf({{1.0, 1.0, 1.0, 1.0}, {2.0, 2.0, 2.0, 2.0}});
    table.ClearAllReferences();
    EXPECT_EQ(table.RefCount(), 0);
    ASSERT_EQ(table.Entries().size(), 1U);
    EXPECT_EQ(table.Entries()[0], ReferencePoint{});
    EXPECT_FALSE(table.ReferenceMode());
}

TEST(ClearLastReference, LeavesTheModeAndTheArray)
{
    ReferenceTable table = TableOf({{1.0, 1.0, 1.0, 1.0}});
    table.ClearLastReference();
    EXPECT_EQ(table.RefCount(), 0);
    table.ClearLastReference();
    EXPECT_EQ(table.RefCount(), 0);
    EXPECT_EQ(table.Entries().size(), 1U);
    EXPECT_TRUE(table.ReferenceMode());
}

TEST(SetReferenceMode, OffForgetsTheCountButKeepsTheArray)
{
    ReferenceTable table = TableOf({{1.0, 1.0, 1.0, 1.0}});
    table.SetReferenceMode(true);
    EXPECT_EQ(table.RefCount(), 1);
    table.SetReferenceMode(false);
    EXPECT_EQ(table.RefCount(), 0);
    EXPECT_FALSE(table.ReferenceMode());
    EXPECT_EQ(table.Entries().size(), 1U);
}

TEST(Replace, KeepsTheCountWithinTheArray)
{
    ReferenceTable table;
    table.Replace({{}, {}}, 7);
    EXPECT_EQ(table.RefCount(), 2);
    table.Replace({{}, {}}, -3);
    EXPECT_EQ(table.RefCount(), 0);
    table.Reset();
    EXPECT_TRUE(table.Entries().empty());
    EXPECT_FALSE(table.ReferenceMode());
}

TEST(ReferenceTable, TakesEffectAtTheNextConversion)
{
    ReferenceTable table;
    const geo::GeoPosition position = {48.4, 8.3};
    table.AddStation2Reference(0.0, 1000.0, {48.0, 8.0});
    table.AddStation2Reference(1000.0, 1000.0, {48.0, 9.0});
    EXPECT_EQ(GeoToPixel(table, position), Pixel{});
    table.AddStation2Reference(0.0, 0.0, {49.0, 8.0});
    EXPECT_NEAR(GeoToPixel(table, position).x, 300.0, 1e-9);
    EXPECT_NEAR(PixelToGeoEstimate(table, 300, 600).latitude, 48.4, 1e-12);
    table.AddStation2Reference(1100.0, 0.0, {49.0, 9.0});
    EXPECT_GT(GeoToPixel(table, position).x, 301.0);
    table.DeleteNearestReference(1100.0, 0.0);
    EXPECT_NEAR(GeoToPixel(table, position).x, 300.0, 1e-9);
    table.ClearLastReference();
    EXPECT_EQ(GeoToPixel(table, position), Pixel{});
    EXPECT_EQ(PixelToGeoEstimate(table, 300, 600), geo::GeoPosition{});
}

}  // namespace
}  // namespace map
