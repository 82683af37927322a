#include "map/blend/PackedColumns.h"

#include <algorithm>

namespace map {

namespace {

// At this latitude a point has the weight 0.
constexpr double kNowhere = 1e160;

void Put(PointPack& pack, std::size_t lane, const ReferencePoint& point)
{
    pack.longitude[lane] = point.Longitude;
    pack.latitude[lane] = point.Latitude;
    pack.x[lane] = point.X;
    pack.y[lane] = point.Y;
}

// Up to PointPack::kSide columns; what lacks to that many stands at the first one's longitude.
PackedColumns Pack(std::span<const ReferencePoint> points, std::span<const Column> columns)
{
    std::size_t length = 0;
    for (const Column& column : columns) {
        length = std::max(length, column.end - column.begin);
    }
    PackedColumns pack;
    pack.rows.resize(length);
    for (std::size_t lane = 0; lane < PointPack::kSide; ++lane) {
        const bool isFiller = lane >= columns.size();
        const Column& column = columns[isFiller ? 0 : lane];
        for (std::size_t i = 0; i < length; ++i) {
            const bool isEmpty = isFiller || column.begin + i >= column.end;
            ReferencePoint point = points[isEmpty ? column.begin : column.begin + i];
            point.Latitude = isEmpty ? kNowhere : point.Latitude;
            Put(pack.rows[i], lane, point);
        }
    }
    return pack;
}

}  // namespace

std::vector<PointPack> PackPoints(std::span<const ReferencePoint> points)
{
    std::vector<PointPack> packs((points.size() + PointPack::kSide - 1) / PointPack::kSide);
    for (std::size_t i = 0; i < packs.size() * PointPack::kSide; ++i) {
        const bool isFiller = i >= points.size();
        Put(packs[i / PointPack::kSide], i % PointPack::kSide,
            isFiller ? ReferencePoint{.Latitude = kNowhere} : points[i]);
    }
    return packs;
}

std::vector<PointPack> SpreadPoints(std::span<const ReferencePoint> points)
{
    std::vector<PointPack> packs(points.size());
    for (std::size_t i = 0; i < packs.size(); ++i) {
        for (std::size_t lane = 0; lane < PointPack::kSide; ++lane) {
            Put(packs[i], lane, points[i]);
        }
    }
    return packs;
}

std::vector<PackedColumns> PackColumns(std::span<const ReferencePoint> points,
                                       std::span<const Column> columns)
{
    std::vector<PackedColumns> packed;
    while (!columns.empty()) {
        const std::size_t count = std::min(columns.size(), PointPack::kSide);
        packed.push_back(Pack(points, columns.first(count)));
        columns = columns.subspan(count);
    }
    return packed;
}

}  // namespace map
