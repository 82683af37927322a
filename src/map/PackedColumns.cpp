#include "map/PackedColumns.h"

#include <algorithm>

namespace map {

namespace {

// Up to kSide columns; what lacks to that many stands at the first one's longitude.
PackedColumns Pack(std::span<const ReferencePoint> points, std::span<const Column> columns)
{
    std::size_t length = 0;
    for (const Column& column : columns) {
        length = std::max(length, column.end - column.begin);
    }
    PackedColumns pack;
    pack.rows.resize(length);
    for (std::size_t side = 0; side < PackedColumns::kSide; ++side) {
        const bool isFiller = side >= columns.size();
        const Column& column = columns[isFiller ? 0 : side];
        for (std::size_t i = 0; i < length; ++i) {
            const bool isEmpty = isFiller || column.begin + i >= column.end;
            const ReferencePoint& point = points[isEmpty ? column.begin : column.begin + i];
            pack.rows[i].longitude[side] = point.Longitude;
            pack.rows[i].latitude[side] = isEmpty ? kNowhere : point.Latitude;
            pack.rows[i].x[side] = point.X;
            pack.rows[i].y[side] = point.Y;
        }
    }
    return pack;
}

}  // namespace

std::vector<PackedColumns> PackColumns(std::span<const ReferencePoint> points,
                                       std::span<const Column> columns)
{
    std::vector<PackedColumns> packed;
    while (!columns.empty()) {
        const std::size_t count = std::min(columns.size(), PackedColumns::kSide);
        packed.push_back(Pack(points, columns.first(count)));
        columns = columns.subspan(count);
    }
    return packed;
}

}  // namespace map
