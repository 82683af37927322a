// Start of a run: configuration and database are read from the current directory.

#pragma once

#include "app/AppState.h"

namespace app {

// Reads the configuration, then the working file, then writes the backup. A missing or foreign file
// is replaced by a new one; what a foreign one held is set aside first.
//
// False when anything cannot be read, is damaged or cannot be written: the rest of the steps is
// left out, and the state holds what could be read so far.
bool LoadAtStartUp(AppState& state);

// The station that a panel shows at first: the stored one when the configuration holds it, else the
// built-in one.
struct StartStation {
    stations::StationTexts texts;
    geo::GeoPosition position;
};
StartStation StationAtStartUp(const stations::Configuration& configuration, int station);

}  // namespace app
