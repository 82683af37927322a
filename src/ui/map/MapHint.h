// What resting the pointer on a marker tells, UTF-8, line by line.

#pragma once

#include <cstddef>
#include <string>

#include "app/AppState.h"
#include "geo/GeoPosition.h"
#include "stations/StationRecord.h"

namespace ui {

// Callsign, name and place of a station, as far as it has them, then distance and direction from
// Station 1.
std::string StationHint(const app::AppState& state, const stations::StationRecord& record,
                        geo::GeoPosition position);

// Number of a reference point and by how many pixels the other points miss it: a wrongly placed
// point stands out.
std::string ReferenceHint(const app::AppState& state, std::size_t index);

}  // namespace ui
