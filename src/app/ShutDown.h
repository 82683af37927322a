// End of a run.

#pragma once

#include <system_error>

#include "app/AppState.h"

namespace app {

// Stores Station 1 and Station 2, as S1S2_Update left them, in the configuration and writes its
// file, so that the next start shows them again. Only the first call of a run does anything,
// even when its write failed.
std::error_code SaveAtEnd(AppState& state);

}  // namespace app
