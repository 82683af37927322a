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

FileKind KindOf(const std::string& name);

}  // namespace app
