// The five forms in which a panel shows a station's position.

#pragma once

#include "app/AppState.h"

namespace ui {

class EntryField;
class StationPanel;

bool IsFinite(const geo::GeoPosition& position);

// Sets the station's position to what the fields of a form name, of decimal degrees to the
// coordinate of the field that was edited.
void ReadForm(app::AppState& state, const StationPanel& panel, app::EntryGroup form,
              const EntryField* edited);

// Shows the station's position in a form. One without a finite result is left empty.
void ShowForm(const app::AppState& state, const StationPanel& panel, app::EntryGroup form);

}  // namespace ui
