// What a file holds that a command is about to replace.

#pragma once

#include <string>

namespace app {

enum class FileKind {
    Missing,
    Unreadable,
    Database,       // marked as a station database, damaged or not
    Adjustment,     // marked as an adjustment file, likewise
    Configuration,  // marked as a configuration, likewise
    Other,
};

// By its mark, whatever the name ends in; the first that fits, in the order above. A file whose
// folder is missing is missing.
FileKind KindOf(const std::string& name);

}  // namespace app
