#include "map/LeaveOneOut.h"

#include <vector>

#include "map/blend/Blend.h"

namespace map {

std::optional<double> MissedBy(const ReferenceTable& table, std::size_t index)
{
    const auto points = table.Points();
    std::vector<ReferencePoint> others(points.begin(), points.end());
    const ReferencePoint point = points[index];
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(index));
    ForwardBlend blend;
    blend.Prepare(others);
    if (!blend.Usable()) {
        return std::nullopt;
    }
    return Distance(blend.At({.latitude = point.Latitude, .longitude = point.Longitude}),
                    {.x = point.X, .y = point.Y});
}

}  // namespace map
