// The menus of the main window.

#pragma once

#include <functional>

class QMainWindow;

namespace ui {

class CfgForm;
class EditCommands;
class FileCommands;
class UserDialogs;

// What the menu items act on.
struct MainCommands {
    FileCommands& files;
    EditCommands& edits;
    CfgForm& configuration;
    UserDialogs& dialogs;
    std::function<void()> showMap;
};

void AddMainMenu(QMainWindow& window, const MainCommands& commands);

}  // namespace ui
