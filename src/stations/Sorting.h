// Sorting the station database.
//
// The order of records that compare equal is part of the behaviour: it is the one that a certain
// quicksort (C. A. R. Hoare, "Algorithm 64", Communications of the ACM 4, 1961) leaves, not the one
// they had. See Sorting.cpp.

#pragma once

#include <vector>

#include "geo/GeoPosition.h"
#include "stations/ListLine.h"
#include "stations/StationDatabase.h"

namespace stations {

// One value per record: distance from Station 1 in km, or compass bearing from Station 1 in degrees
// (north 0, east 90; 0 <= value < 360), by geo/Distance.h; not a number for a position that is not
// finite. Empty for every other key.
std::vector<double> KeyValues(const StationDatabase& database, ListKey key,
                              geo::GeoPosition station1);

enum class Order { Ascending, Descending };

// Sorts by the fields that belong to `key`; texts compare by their bytes, so "Z" comes before "a".
// For the distance and the direction `keyValues` holds one value per record and is brought into the
// new order too. A key outside ListKey leaves everything as it is.
void Sort(StationDatabase& database, ListKey key, Order order, std::vector<double>& keyValues);

}  // namespace stations
