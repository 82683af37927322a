// Where the program keeps its files.

#pragma once

#include <string>
#include <system_error>

namespace app {

// The program directory: the folder that holds the program when the user can write there (a
// portable copy), else `userFolder`. A program that lies in its build tree counts as not portable,
// so that removing the tree loses no station.
std::string ProgramFolder(const std::string& folderOfProgram, const std::string& userFolder);

// True when a user would look for his files in the program's own folder, but `folder` is the one
// that is used: the folder cannot be written and belongs to the user, or such files lie there.
bool IsPassedOver(const std::string& ownFolder, const std::string& folder);

// Creates the folder when it is missing and makes it the current directory, which it then stays.
std::error_code EnterFolder(const std::string& folder);

}  // namespace app
