// Equal entries of the database, and the mean of marked ones.
//
// Equal records are found as neighbours: the database is first sorted by the latitude key and stays
// in that order.

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"
#include "stations/Sorting.h"
#include "stations/StationDatabase.h"
#include "stations/StationRecord.h"

namespace stations {

enum class Equality {
    Full,      // position and the texts from callsign to date
    Position,  // latitude and longitude exactly equal
};

// The reserved texts do not count. NaN equals nothing.
bool AreEqual(const StationRecord& a, const StationRecord& b, Equality equality);

// Sorts the database and keeps the first of each run of fully equal records.
void RemoveEqualEntries(StationDatabase& database, Order order);

// Sorts the database and gives the indexes, ascending, of all records that equal an earlier one:
// each run but for its first record.
std::vector<std::size_t> FindEqualEntries(StationDatabase& database, Equality equality,
                                          Order order);

// What Station 1 becomes when it is set to the mean of marked stations.
struct MeanStation {
    StationTexts texts;
    geo::GeoPosition position;  // not finite when one of the marked is not
};

// Arithmetic mean of the degree values, not on the sphere: 179 and -179 give longitude 0. None
// without marked records. The indexes must be below Count().
std::optional<MeanStation> MeanOfMarked(const StationDatabase& database,
                                        std::span<const std::size_t> marked);

}  // namespace stations
