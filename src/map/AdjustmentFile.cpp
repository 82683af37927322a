#include "map/AdjustmentFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace map {

namespace {

constexpr std::int16_t kVersion = 1;
constexpr std::int16_t kHeaderLength = 240;
constexpr std::int32_t kStamp = 161101;
constexpr std::uint32_t kColour = 0x00CCCCCC;
constexpr std::uint32_t kSystemColour = 0x8000000D;
constexpr std::size_t kReservedLength = 132;
constexpr std::size_t kEntryLength = 32;
constexpr std::size_t kCornerNumbers = 10;  // latitudes and longitudes, five each

std::array<geo::GeoPosition, 5> Corners(const ReferenceTable& table, ImageSize size)
{
    return {PixelToGeoEstimate(table, 0, 0),
            PixelToGeoEstimate(table, 0, size.height),
            PixelToGeoEstimate(table, size.width, 0),
            PixelToGeoEstimate(table, size.width, size.height),
            {}};
}

bool IsFinite(const ReferencePoint& point)
{
    return std::isfinite(point.X) && std::isfinite(point.Y) && std::isfinite(point.Longitude)
           && std::isfinite(point.Latitude);
}

Adjustment Damaged(AdjustmentState state)
{
    Adjustment adjustment;
    adjustment.state = state;
    return adjustment;
}

}  // namespace

base::ByteVector PackAdjustment(const ReferenceTable& table, ImageSize size)
{
    base::ByteWriter writer;
    writer.Reserve(kHeaderLength + table.Entries().size() * kEntryLength);
    writer.Put(kVersion);
    writer.Put(table.RefCount());
    writer.Put(kHeaderLength);
    writer.PutZeros(2);
    writer.Put(size.width);
    writer.Put(size.height);
    const auto corners = Corners(table, size);
    for (const geo::GeoPosition corner : corners) {
        writer.Put(corner.latitude);
    }
    for (const geo::GeoPosition corner : corners) {
        writer.Put(corner.longitude);
    }
    writer.Put(kColour);
    writer.Put(kSystemColour);
    writer.PutZeros(kReservedLength);
    writer.Put(kStamp);
    for (const ReferencePoint& entry : table.Entries()) {
        writer.Put(entry.X);
        writer.Put(entry.Y);
        writer.Put(entry.Longitude);
        writer.Put(entry.Latitude);
    }
    return writer.Take();
}

Adjustment UnpackAdjustment(base::ByteView bytes)
{
    if (bytes.size() < kHeaderLength) {
        return Damaged(AdjustmentState::TooShort);
    }
    Adjustment adjustment;
    std::int16_t version = 0;
    std::int16_t headerLength = 0;
    std::array<double, kCornerNumbers> corners = {};
    std::int32_t stamp = 0;
    base::ByteReader reader(bytes);
    reader.Get(version);
    reader.Get(adjustment.refCount);
    reader.Get(headerLength);
    reader.Skip(2);
    reader.Get(adjustment.size.width);
    reader.Get(adjustment.size.height);
    for (double& corner : corners) {
        reader.Get(corner);
    }
    reader.Skip(sizeof kColour + sizeof kSystemColour + kReservedLength);
    reader.Get(stamp);
    if (stamp != kStamp) {
        return Damaged(AdjustmentState::Foreign);
    }
    if (version != kVersion || headerLength != kHeaderLength) {
        return Damaged(AdjustmentState::Version);
    }
    const std::size_t present = reader.Left() / kEntryLength;
    if (adjustment.refCount < 0 || static_cast<std::size_t>(adjustment.refCount) > present) {
        return Damaged(AdjustmentState::Count);
    }
    adjustment.entries.resize(present);
    for (ReferencePoint& entry : adjustment.entries) {
        reader.Get(entry.X);
        reader.Get(entry.Y);
        reader.Get(entry.Longitude);
        reader.Get(entry.Latitude);
    }
    const auto isFinite = [](double number) { return std::isfinite(number); };
    if (!std::all_of(corners.begin(), corners.end(), isFinite)
        || !std::all_of(adjustment.entries.begin(), adjustment.entries.end(), IsFinite)) {
        return Damaged(AdjustmentState::NotFinite);
    }
    return adjustment;
}

}  // namespace map
