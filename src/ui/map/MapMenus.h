// The menus of the map window as tables, and their states.

#pragma once

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include <QMainWindow>

#include "app/AppState.h"
#include "plot/MapView.h"
#include "ui/MenuTable.h"

namespace ui {

class MapCommands;

class MapMenus {
public:
    // All outlive the menus. `before` runs before every command.
    MapMenus(QMainWindow& window, app::AppState& state, plot::MapView& view, MapCommands& commands,
             std::function<void()> before);

    // Marks and enables the items as state and view are.
    void Show() const;

private:
    void AddFileMenu();
    void AddDisplayMenu();
    void AddEditMenu();
    void AddClickMenu();
    QMenu* AddMenu(const char* name, const QString& caption, std::initializer_list<MenuItem> items);
    // An item that is marked while `marked` says so.
    MenuItem Marked(const char* name, const QString& caption, std::function<void(bool)> command,
                    std::function<bool()> marked);
    MenuItem Switch(const char* name, const QString& caption, bool& on);
    QAction* Item(const char* name) const;

    QMainWindow& window_;
    app::AppState& state_;
    plot::MapView& view_;
    MapCommands& commands_;
    std::function<void()> before_;
    std::vector<std::pair<const char*, std::function<bool()>>> marks_;
};

}  // namespace ui
