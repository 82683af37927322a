#include "map/AdjustmentFile.h"

#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "map/CalibrationFile.h"

namespace map {
namespace {

constexpr ImageSize kSize = {.width = 800, .height = 600};

ReferenceTable Table()
{
    ReferenceTable table;
    table.AddStation2Reference(0.0, 0.0, {49.0, 11.0});
    table.AddStation2Reference(800.0, 0.0, {49.0, 12.0});
    table.AddStation2Reference(0.0, 600.0, {48.0, 11.0});
    return table;
}

template <typename T>
void Set(base::ByteVector& bytes, std::size_t offset, T value)
{
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}

// The layout once more, field by field at its offset.
base::ByteVector Expected(std::int16_t count, const std::vector<geo::GeoPosition>& corners,
                          const std::vector<ReferencePoint>& entries)
{
    base::ByteVector bytes(240 + 32 * entries.size(), 0);
    Set<std::int16_t>(bytes, 0, 1);
    Set<std::int16_t>(bytes, 2, count);
    Set<std::int16_t>(bytes, 4, 240);
    Set<std::int32_t>(bytes, 8, kSize.width);
    Set<std::int32_t>(bytes, 12, kSize.height);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        Set(bytes, 16 + 8 * i, corners[i].latitude);
        Set(bytes, 56 + 8 * i, corners[i].longitude);
    }
    Set<std::uint32_t>(bytes, 96, 0x00CCCCCC);
    Set<std::uint32_t>(bytes, 100, 0x8000000D);
    Set<std::int32_t>(bytes, 236, 161101);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        Set(bytes, 240 + 32 * i, entries[i].X);
        Set(bytes, 248 + 32 * i, entries[i].Y);
        Set(bytes, 256 + 32 * i, entries[i].Longitude);
        Set(bytes, 264 + 32 * i, entries[i].Latitude);
    }
    return bytes;
}

// Top left, bottom left, top right, bottom right.
std::vector<geo::GeoPosition> EstimatedCorners(const ReferenceTable& table)
{
    return {PixelToGeoEstimate(table, 0, 0), PixelToGeoEstimate(table, 0, 600),
            PixelToGeoEstimate(table, 800, 0), PixelToGeoEstimate(table, 800, 600)};
}

TEST(PackAdjustment, WritesEveryByteInItsPlace)
{
    const ReferenceTable table = Table();
    const std::vector<geo::GeoPosition> corners = EstimatedCorners(table);
    EXPECT_NEAR(corners[1].latitude, 48.0, 1e-12);
    EXPECT_NEAR(corners[3].longitude, 12.0, 1e-12);
    EXPECT_EQ(
        PackAdjustment(table, kSize),
        Expected(3, corners,
                 {{0.0, 0.0, 11.0, 49.0}, {800.0, 0.0, 12.0, 49.0}, {0.0, 600.0, 11.0, 48.0}}));
}

TEST(PackAdjustment, BeginsWithTheseBytes)
{
    const base::ByteVector bytes = PackAdjustment(Table(), kSize);
    const base::ByteVector start(bytes.begin(), bytes.begin() + 16);
    EXPECT_EQ(start, (base::ByteVector{1, 0, 3, 0, 240, 0, 0, 0, 0x20, 3, 0, 0, 0x58, 2, 0, 0}));
    const base::ByteVector end(bytes.begin() + 232, bytes.begin() + 240);
    EXPECT_EQ(end, (base::ByteVector{0, 0, 0, 0, 0x4D, 0x75, 2, 0}));
}

TEST(PackAdjustment, WritesTheWholeArrayAfterAddDeleteAdd)
{
    ReferenceTable table = Table();
    table.AddStation2Reference(400.0, 300.0, {48.5, 11.5});
    table.DeleteNearestReference(0.0, 0.0);
    const std::vector<ReferencePoint> moved = {{800.0, 0.0, 12.0, 49.0},
                                               {0.0, 600.0, 11.0, 48.0},
                                               {400.0, 300.0, 11.5, 48.5},
                                               {400.0, 300.0, 11.5, 48.5}};
    EXPECT_EQ(PackAdjustment(table, kSize), Expected(3, EstimatedCorners(table), moved));

    table.AddStation2Reference(10.0, 20.0, {48.9, 11.1});
    std::vector<ReferencePoint> added = moved;
    added[3] = {10.0, 20.0, 11.1, 48.9};
    EXPECT_EQ(PackAdjustment(table, kSize), Expected(4, EstimatedCorners(table), added));
}

TEST(PackAdjustment, WritesTheFifthEmptyEntryOfBounds)
{
    ReferenceTable table;
    table.Replace(ReferencesFromInf({49.0, 48.0, 11.0, 12.0}, kSize), 4);
    const base::ByteVector bytes = PackAdjustment(table, kSize);
    EXPECT_EQ(bytes, Expected(4, EstimatedCorners(table),
                              {{0.0, 0.0, 11.0, 49.0},
                               {0.0, 600.0, 11.0, 48.0},
                               {800.0, 0.0, 12.0, 49.0},
                               {800.0, 600.0, 12.0, 48.0},
                               {}}));
}

TEST(UnpackAdjustment, ReadsWhatWasPacked)
{
    ReferenceTable table = Table();
    table.DeleteNearestReference(0.0, 0.0);
    const Adjustment adjustment = UnpackAdjustment(PackAdjustment(table, kSize));
    ASSERT_EQ(adjustment.state, AdjustmentState::Good);
    EXPECT_EQ(adjustment.size, kSize);
    EXPECT_EQ(adjustment.refCount, 2);
    EXPECT_EQ(adjustment.entries, std::vector(table.Entries().begin(), table.Entries().end()));

    ReferenceTable restored;
    restored.Replace(adjustment.entries, adjustment.refCount);
    EXPECT_EQ(PackAdjustment(restored, kSize), PackAdjustment(table, kSize));
    EXPECT_TRUE(restored.ReferenceMode());
}

TEST(UnpackAdjustment, TellsWhatIsDamaged)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    base::ByteVector bytes = PackAdjustment(Table(), kSize);
    const auto stateWith = [&bytes](std::size_t offset, auto value) {
        base::ByteVector damaged = bytes;
        Set(damaged, offset, value);
        return UnpackAdjustment(damaged).state;
    };
    EXPECT_EQ(stateWith(236, std::int32_t{161102}), AdjustmentState::Foreign);
    EXPECT_EQ(stateWith(0, std::int16_t{2}), AdjustmentState::Version);
    EXPECT_EQ(stateWith(4, std::int16_t{239}), AdjustmentState::Version);
    EXPECT_EQ(stateWith(2, std::int16_t{-1}), AdjustmentState::Count);
    EXPECT_EQ(stateWith(2, std::int16_t{4}), AdjustmentState::Count);
    EXPECT_EQ(stateWith(2, std::int16_t{32767}), AdjustmentState::Count);
    EXPECT_EQ(stateWith(16, nan), AdjustmentState::NotFinite);
    EXPECT_EQ(stateWith(88, infinity), AdjustmentState::NotFinite);
    for (std::size_t offset = 240; offset < bytes.size(); offset += 8) {
        EXPECT_EQ(stateWith(offset, nan), AdjustmentState::NotFinite) << offset;
        EXPECT_EQ(stateWith(offset, -infinity), AdjustmentState::NotFinite) << offset;
    }
    EXPECT_EQ(stateWith(2, std::int16_t{0}), AdjustmentState::Good);
    EXPECT_EQ(stateWith(6, std::int16_t{77}), AdjustmentState::Good) << "reserved";
    EXPECT_EQ(stateWith(96, std::uint32_t{0}), AdjustmentState::Good) << "only a colour";
}

TEST(UnpackAdjustment, TakesAnyLength)
{
    const base::ByteVector whole = PackAdjustment(Table(), kSize);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const Adjustment adjustment = UnpackAdjustment(base::ByteView(whole).first(length));
        const AdjustmentState expected = length < 240            ? AdjustmentState::TooShort
                                         : length < whole.size() ? AdjustmentState::Count
                                                                 : AdjustmentState::Good;
        EXPECT_EQ(adjustment.state, expected) << length;
        EXPECT_EQ(adjustment.entries.empty(), expected != AdjustmentState::Good);
    }
    base::ByteVector longer = whole;
    longer.resize(whole.size() + 31, 0xFF);
    EXPECT_EQ(UnpackAdjustment(longer).entries.size(), 3U) << "no whole entry more";
}

}  // namespace
}  // namespace map
