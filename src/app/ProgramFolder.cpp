#include "app/ProgramFolder.h"

#include <filesystem>

#include "base/FileNames.h"
#include "stations/Configuration.h"

namespace app {

namespace {

bool InBuildTree(const std::filesystem::path& folder)
{
    std::error_code error;
    for (std::filesystem::path at = folder; !at.empty(); at = at.parent_path()) {
        if (std::filesystem::exists(at / "CMakeCache.txt", error)) {
            return true;
        }
        if (at == at.parent_path()) {
            break;
        }
    }
    return false;
}

}  // namespace

std::string ProgramFolder(const std::string& folderOfProgram, const std::string& userFolder)
{
    const bool portable = base::MayWriteIn(folderOfProgram) && !InBuildTree(folderOfProgram);
    return portable ? folderOfProgram : userFolder;
}

bool IsPassedOver(const std::string& ownFolder, const std::string& folder)
{
    if (folder == ownFolder || InBuildTree(ownFolder)) {
        return false;
    }
    const bool installed = ownFolder.starts_with("/usr/") || ownFolder.starts_with("/opt/");
    return !installed || base::FindWithoutCase(ownFolder, stations::kConfigurationName)
           || base::FindWithoutCase(ownFolder, stations::Configuration().workingFile);
}

std::error_code EnterFolder(const std::string& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    std::filesystem::current_path(folder, error);
    return error;
}

}  // namespace app
