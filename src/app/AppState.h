// The program's one shared state: every window reads and writes it directly.
//
// main() owns the only object and hands it to the windows by reference. It outlives them, so that
// a window that is closed and opened again finds everything as it left it. There is one thread and
// nothing is locked. No section announces a change: whoever changes something also calls what has
// to be shown again, because the order of those calls is part of the operation.

#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "app/MapState.h"
#include "base/NumberText.h"
#include "base/OldBytes.h"
#include "geo/GeoPosition.h"
#include "stations/Configuration.h"
#include "stations/ListLine.h"
#include "stations/Sorting.h"
#include "stations/StationDatabase.h"
#include "stations/StationRecord.h"
#include "stations/WorkingFile.h"

namespace app {

// The form of the coordinates that the user is editing. Only this form's changes are acted upon.
enum class EntryGroup : std::int16_t {
    None = -1,
    Locator = 0,
    Decimal = 1,
    DegreeMinute = 2,
    GaussKrueger = 3,
    Utm = 4,
};

// Station 1 and Station 2 as the panels show them; element 0 is Station 1.
struct StationsShown {
    std::array<geo::GeoPosition, 2> position;
    std::array<stations::StationRecord, 2> record;  // as of the last S1S2_Update
};

// The coordinate fields.
struct EntryState {
    EntryGroup activeGroup = EntryGroup::None;
};

// What a click on a line of the station list does.
enum class ListMode {
    Nop,
    Get,    // load the record into the target panel
    Clear,  // load it and delete it from the database
};

// The station list and its order.
struct ListState {
    stations::ListKey key = stations::ListKey::Callsign;  // leads each line; chooses the sort order
    stations::Order order = stations::Order::Ascending;   // no command changes it
    ListMode mode = ListMode::Nop;
    int targetPanel = 0;  // the panel that a clicked line is loaded into
};

// Start and end of a run.
struct SessionState {
    // The program's own folder, when it is not the program directory although a user would look
    // for his files there; else empty.
    std::string passedOverFolder;
    // As they are spelt in the program directory.
    std::string configurationName = stations::kConfigurationName;
    std::string backupName = stations::kBackupName;
    bool configurationSaved = false;    // the file is written once at the end of a run
    bool configurationChanged = false;  // by the configuration dialog
    base::OldBytes workingFileBytes = base::OldBytes::Known;
    base::OldBytes configurationBytes = base::OldBytes::Known;
};

struct AppState {
    stations::StationDatabase database;
    stations::Configuration configuration;
    ListState list;
    MapState map;
    SessionState session;
    StationsShown shown;
    EntryState entry;
    base::NumberFormat numberFormat;  // the decimal separator of the user's regional settings
};

}  // namespace app
