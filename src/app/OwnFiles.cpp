#include "app/OwnFiles.h"

#include "base/FileNames.h"

namespace app {

bool IsOwnFile(const AppState& state, const std::string& name)
{
    return base::SameFile(name, state.configuration.workingFile)
           || base::SameFile(name, state.session.backupName)
           || base::SameFile(name, state.session.configurationName);
}

}  // namespace app
