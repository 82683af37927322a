#include "map/ReferenceTable.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace map {

std::span<const ReferencePoint> ReferenceTable::Points() const
{
    return Entries().first(static_cast<std::size_t>(refCount_));
}

AddResult ReferenceTable::AddStation2Reference(double clickX, double clickY,
                                               geo::GeoPosition station2)
{
    const ReferencePoint added = {
        .X = clickX, .Y = clickY, .Longitude = station2.longitude, .Latitude = station2.latitude};
    const std::span<const ReferencePoint> points = Points();
    if (std::any_of(points.begin(), points.end(), [&added](const ReferencePoint& point) {
            return (point.X == added.X && point.Y == added.Y)
                   || (point.Longitude == added.Longitude && point.Latitude == added.Latitude);
        })) {
        return AddResult::Duplicate;
    }
    if (refCount_ == std::numeric_limits<std::int16_t>::max()) {
        return AddResult::Full;
    }
    entries_.resize(points.size());
    entries_.push_back(added);
    ++refCount_;
    referenceMode_ = true;
    Prepare();
    return AddResult::Added;
}

bool ReferenceTable::DeleteNearestReference(double clickX, double clickY)
{
    if (refCount_ == 0) {
        return false;
    }
    double least = 9e39;
    auto nearest = entries_.begin();
    const auto end = entries_.begin() + refCount_;
    for (auto entry = entries_.begin(); entry != end; ++entry) {
        const double dx = entry->X - clickX;
        const double dy = entry->Y - clickY;
        if (dx * dx + dy * dy < least) {
            least = dx * dx + dy * dy;
            nearest = entry;
        }
    }
    std::copy(nearest + 1, end, nearest);
    --refCount_;
    Prepare();
    return true;
}

void ReferenceTable::ClearAllReferences()
{
    entries_.assign(1, {});
    SetReferenceMode(false);
}

void ReferenceTable::ClearLastReference()
{
    if (refCount_ > 0) {
        --refCount_;
        Prepare();
    }
}

void ReferenceTable::SetReferenceMode(bool on)
{
    referenceMode_ = on;
    if (!on) {
        refCount_ = 0;
        Prepare();
    }
}

void ReferenceTable::Replace(std::vector<ReferencePoint> entries, std::int16_t refCount)
{
    const std::size_t limit =
        std::min<std::size_t>(entries.size(), std::numeric_limits<std::int16_t>::max());
    entries_ = std::move(entries);
    refCount_ = std::clamp<std::int16_t>(refCount, 0, static_cast<std::int16_t>(limit));
    referenceMode_ = referenceMode_ || refCount_ > 0;
    Prepare();
}

void ReferenceTable::Reset()
{
    entries_.clear();
    SetReferenceMode(false);
}

void ReferenceTable::Prepare()
{
    forward_.Prepare(Points());
    inverse_.Prepare(Points());
}

}  // namespace map
