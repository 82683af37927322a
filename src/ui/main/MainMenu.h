// The menus of the main window.

#pragma once

#include <functional>

class QMainWindow;

namespace ui {

class CfgForm;
class EditCommands;
class FileCommands;
class UserDialogs;

void AddMainMenu(QMainWindow& window, UserDialogs& dialogs, FileCommands& files,
                 EditCommands& edits, CfgForm& configuration, const std::function<void()>& showMap);

}  // namespace ui
