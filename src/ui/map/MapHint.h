// What resting the pointer on the map tells, line by line.

#pragma once

#include <cstddef>
#include <string>

#include "app/AppState.h"
#include "geo/GeoPosition.h"
#include "plot/MapView.h"
#include "stations/StationRecord.h"

class QString;

namespace ui {

class MapPainter;

// About the topmost marker at a point of the surface; without one, that the references give the
// point no position. Empty when there is nothing to tell.
QString HintAt(const app::AppState& state, const MapPainter& painter, const plot::MapView& view,
               plot::SurfacePoint point);

// UTF-8: callsign, name and place of a station, as far as it has them, then distance and direction
// from Station 1.
std::string StationHint(const app::AppState& state, const stations::StationRecord& record,
                        geo::GeoPosition position);

// UTF-8: number of a reference point and by how many pixels the other points miss it: a wrongly
// placed point stands out.
std::string ReferenceHint(const app::AppState& state, std::size_t index);

}  // namespace ui
