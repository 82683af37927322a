// The map window: stations around Station 1 on a polar scale, or on a map image.
//
// It exists only while it is open. What it shows and what is to survive it stands in the shared
// state; the route, the grid and the marks of MnuSel and MnuAlle end with the window.

#pragma once

#include <QMainWindow>

#include "app/AppState.h"
#include "app/MainWindowPort.h"
#include "plot/MapView.h"
#include "ui/CountingDialogs.h"
#include "ui/map/ActivatingPress.h"
#include "ui/map/MapCommands.h"
#include "ui/map/MapImage.h"
#include "ui/map/MapMouse.h"

namespace ui {

class MapPane;

class Gform : public QMainWindow {
    Q_OBJECT

public:
    // All four outlive the window.
    Gform(app::AppState& state, MapImage& image, app::MainWindowPort& mainWindow,
          UserDialogs& dialogs);

    // To be called when a station or the database changed in the main window: redraws when the
    // configuration says so.
    void AutoRedraw();

    MapPane* const pane;  // what stands below the menus

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void OfferClickModes(QPoint point);
    void Activate();
    void Press(plot::SurfacePoint point);
    void Click();

    app::AppState& state_;
    app::MainWindowPort& mainWindow_;
    CountingDialogs dialogs_;
    plot::MapView view_;
    MapCommands commands_;
    MapMouse mouse_;

    bool leftForOwnDialog_ = false;  // the window gave its activation to a dialog of its own
    ActivatingPress activatingPress_;
};

}  // namespace ui
