#include "stations/StationDatabase.h"

#include <algorithm>

namespace stations {

bool StationDatabase::Append(const StationRecord& record)
{
    if (Count() >= kMaxRecords) {
        return false;
    }
    records_.push_back(record);
    return true;
}

bool StationDatabase::Append(std::span<const StationRecord> records)
{
    if (records.size() > kMaxRecords - Count()) {
        return false;
    }
    records_.insert(records_.end(), records.begin(), records.end());
    return true;
}

void StationDatabase::Delete(std::size_t index)
{
    records_.erase(records_.begin() + static_cast<std::ptrdiff_t>(index));
}

void StationDatabase::Delete(std::span<const std::size_t> indexes)
{
    if (indexes.empty()) {
        return;
    }
    // What lies between two removed records moves up as one piece.
    auto kept = records_.begin() + static_cast<std::ptrdiff_t>(indexes.front());
    for (std::size_t i = 0; i < indexes.size(); ++i) {
        const std::size_t next = i + 1 < indexes.size() ? indexes[i + 1] : Count();
        kept = std::copy(records_.begin() + static_cast<std::ptrdiff_t>(indexes[i]) + 1,
                         records_.begin() + static_cast<std::ptrdiff_t>(next), kept);
    }
    records_.erase(kept, records_.end());
}

void StationDatabase::Truncate(std::size_t count)
{
    records_.resize(std::min(count, Count()));
}

void StationDatabase::Reorder(std::vector<std::uint32_t> order)
{
    // In place, one closed chain of moves after the other: a second array of this size costs more
    // than the moves. A place that has its record points to itself.
    for (std::uint32_t first = 0; first < order.size(); ++first) {
        if (order[first] == first) {
            continue;
        }
        const StationRecord displaced = records_[first];
        std::uint32_t place = first;
        for (std::uint32_t source = order[place]; source != first; source = order[place]) {
            records_[place] = records_[source];
            order[place] = place;
            place = source;
        }
        records_[place] = displaced;
        order[place] = place;
    }
}

}  // namespace stations
