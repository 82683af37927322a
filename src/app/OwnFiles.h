// The files that the program keeps itself.

#pragma once

#include <string>

#include "app/AppState.h"

namespace app {

// True for the working file, its backup and the configuration, by any path or link: no command
// writes over them.
bool IsOwnFile(const AppState& state, const std::string& name);

}  // namespace app
