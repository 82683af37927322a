// The map window's menu commands.

#pragma once

#include <functional>

#include "app/AppState.h"
#include "plot/MapView.h"
#include "ui/map/MapFiles.h"
#include "ui/map/MapMenus.h"

namespace ui {

class MapPane;

class MapCommands {
public:
    // Adds the menus to the window. All outlive the commands; `before` runs before each of them.
    MapCommands(app::AppState& state, MapImage& image, UserDialogs& dialogs, plot::MapView& view,
                MapPane& pane, QMainWindow& window, std::function<void()> before);

    // Shows state and view: menus, pointer, and the surface in the next paint event.
    void Show() const;

    // A switch, a choice of labels, a click mode.
    template <typename Setting>
    void Set(Setting& setting, Setting value)
    {
        setting = value;
        Show();
    }

    void SetImageMode(bool on);
    void LoadMap();
    void LeaveMap();
    void ToggleGrid(bool on);
    void ShowProperties();
    void SaveAdjustment() { files_.SaveAdjustment(); }
    void SaveCalibration() { files_.SaveCalibration(); }
    void ReferencesFromBounds();
    void ClearAllReferences();
    void ClearLastReference();
    void ContinueRoute();

private:
    app::AppState& state_;
    MapImage& image_;
    UserDialogs& dialogs_;
    plot::MapView& view_;
    MapPane& pane_;
    QMainWindow& window_;
    MapFiles files_;
    MapMenus menus_;
};

}  // namespace ui
