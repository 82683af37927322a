// Start of a run: configuration and database are read from the current directory.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/AppState.h"

namespace app {

// Why the loader broke off: a file that cannot be read or contradicts itself. It is as it was.
struct SetupFault {
    enum class Kind {
        Unreadable,
        NoFolder,  // the folder that the name stands in is not there
        BadCount,  // the number of records is impossible
        CutShort,  // the file ends before its last record does
        NoName,    // the configuration names no working file
        NoMemory,
    };
    Kind kind = Kind::Unreadable;
    std::string file;
    std::string sameNameHere;  // a file of that name in the program directory; empty: none

    bool operator==(const SetupFault&) const = default;
};

// What the start did without being asked, and the user would want to know.
struct StartNotice {
    enum class Kind {
        ForeignConfiguration,  // replaced by the defaults
        ConfigurationFound,    // under another spelling, `other`
        WorkingFileFound,      // under another spelling or in another place, `other`
        NewWorkingFile,        // none under that name, nor, when there is one, under `other`
        EmptyWorkingFile,      // a file without a single byte
        ForeignWorkingFile,    // replaced by an empty database
        BytesBehindRecords,    // of the working file, which are not read
        BackupReplaced,        // one with other records
    };
    Kind kind = Kind::NewWorkingFile;
    std::string file;
    std::string other;   // empty: none
    std::string keptAs;  // where the old bytes are now; empty: nothing had to be kept

    bool operator==(const StartNotice&) const = default;
};

struct StartReport {
    std::optional<SetupFault> fault;        // the steps behind it are left out
    std::vector<std::string> failedWrites;  // files that could not be made or replaced
    std::vector<StartNotice> notices;       // in the order of the steps
};

// Reads the configuration, then the working file, then writes the backup. A missing or foreign file
// is replaced by a new one; what a foreign one held is set aside first. A write that fails is
// reported and does not end the start; the file then counts as not known.
//
// The three files of fixed names are found whatever the case of their letters, and so is a working
// file that is named without a folder or with one of another system.
StartReport LoadAtStartUp(AppState& state);

// The station that a panel shows at first: the stored one when the configuration holds it, else the
// built-in one. `station` 0 is Station 1, any other value Station 2.
struct StartStation {
    stations::StationTexts texts;
    geo::GeoPosition position;
};
StartStation StationAtStartUp(const stations::Configuration& configuration, int station);

}  // namespace app
