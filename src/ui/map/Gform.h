// The map window: stations around Station 1 on a polar scale, or on a map image.
//
// It exists only while it is open. What it shows and what is to survive it stands in the shared
// state; the route, the grid and the marks of MnuSel and MnuAlle end with the window.

#pragma once

#include <initializer_list>

#include <QMainWindow>

#include "app/AppState.h"
#include "app/MainWindowPort.h"
#include "plot/MapView.h"
#include "ui/CountingDialogs.h"
#include "ui/MenuTable.h"
#include "ui/map/ActivatingPress.h"
#include "ui/map/MapFiles.h"
#include "ui/map/MapImage.h"
#include "ui/map/MapMouse.h"
#include "ui/map/MapPainter.h"

class QListWidget;
class QPushButton;
class QScrollBar;

namespace ui {

class MapPane;
class MapSurface;

class Gform : public QMainWindow {
    Q_OBJECT

public:
    // All four outlive the window.
    Gform(app::AppState& state, MapImage& image, app::MainWindowPort& mainWindow,
          UserDialogs& dialogs);

    // Draws the whole surface anew, in the next paint event.
    void Redraw() const;

    // To be called when a station or the database changed in the main window: redraws when the
    // configuration says so.
    void AutoRedraw();

    QPushButton* Command1 = nullptr;  // "IN": zooms in, polar view
    QPushButton* Command2 = nullptr;  // "OUT": zooms out
    QListWidget* List1 = nullptr;     // the properties report; a click opens it
    QScrollBar* HScroll1 = nullptr;   // the clip's place in the image, map view
    QScrollBar* VScroll1 = nullptr;
    MapSurface* Picture1 = nullptr;  // the drawing surface

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AddMenus();
    void AddFileMenu();
    void AddDisplayMenu();
    void AddEditMenu();
    void AddClickMenu();
    QMenu* NewMenu(const char* name, const QString& caption);
    void AddItems(QMenu* menu, std::initializer_list<MenuItem> items);
    QAction* Item(const char* name) const;
    void ShowSwitches();
    void OfferClickModes(QPoint point);

    void Activate();

    void SetImageMode(bool on);
    void SetReferenceMode(bool on);
    void ShowReferenceMode();
    void SetClickMode(app::ClickMode mode);
    void SetLabelChoice(stations::LabelChoice choice);

    void Press(plot::SurfacePoint point);
    void Click();

    // Menu commands.
    void LoadMap();
    void LeaveMap();
    void Toggle(bool stations::Configuration::*shown, bool on);
    void ToggleGrid(bool on);
    void SaveAdjustment();
    void SaveCalibration();
    void ReferencesFromBounds();
    void ClearAllReferences();
    void ClearLastReference();
    void ContinueRoute();

    QString HintAt(plot::SurfacePoint point) const;
    bool GivesPositionAt(plot::SurfacePoint point) const;  // false where the references give none
    map::Refinement OutputRefinement() const;

    app::AppState& state_;
    MapImage& image_;
    app::MainWindowPort& mainWindow_;
    CountingDialogs dialogs_;
    MapPane* pane_ = nullptr;

    plot::MapView view_;
    MapPainter painter_;
    MapMouse mouse_;
    MapFiles files_;

    bool leftForOwnDialog_ = false;  // the window gave its activation to a dialog of its own
    ActivatingPress activatingPress_;
};

}  // namespace ui
