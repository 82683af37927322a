// The station database: up to 25000 records in the order of the list, line k being record k.
//
// The files hold one spare record behind the last; it carries nothing and exists only there.

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "stations/StationRecord.h"

namespace stations {

inline constexpr std::size_t kMaxRecords = 25000;

class StationDatabase {
public:
    StationDatabase() = default;

    // At most 25000 records.
    explicit StationDatabase(std::vector<StationRecord> records) : records_(std::move(records)) {}

    std::size_t Count() const { return records_.size(); }
    bool Empty() const { return records_.empty(); }
    std::span<const StationRecord> Records() const { return records_; }
    const StationRecord& operator[](std::size_t index) const { return records_[index]; }

    // All three return false, and change nothing, when that would make more than 25000 records.
    // `records` must not be this database's own.
    bool Append(const StationRecord& record);
    bool Append(std::span<const StationRecord> records);
    bool Append(const StationDatabase& other) { return Append(other.Records()); }

    // There must be one.
    StationRecord& Last() { return records_.back(); }

    // `index` must be below Count().
    void Delete(std::size_t index);

    // Removes the records with the given indexes, which ascend and are below Count(); the others
    // keep their order.
    void Delete(std::span<const std::size_t> indexes);

    // Drops the records from `count` on; nothing when there are no more.
    void Truncate(std::size_t count);

    // Room for `count` records without moving those that are held.
    void Reserve(std::size_t count) { records_.reserve(count); }

    // Record `order[i]` becomes record i. `order` holds each index below Count() once.
    void Reorder(std::vector<std::uint32_t> order);

private:
    std::vector<StationRecord> records_;
};

}  // namespace stations
