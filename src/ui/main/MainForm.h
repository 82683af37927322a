// The main window: two stations, their coordinates in five forms, distance and direction.

#pragma once

#include <array>

#include <QMainWindow>

#include "app/AppState.h"

namespace ui {

class CoordinateFields;
class FormHeadings;
class ResultBlock;
class StationPanel;
class UserDialogs;

class MainForm : public QMainWindow {
    Q_OBJECT

public:
    MainForm(app::AppState& state, UserDialogs& dialogs);

    // Fills both panels: the last step before the window is shown.
    void ShowStartStations();

private:
    QWidget* NewContents();
    void ShowBuiltIn(int station);

    app::AppState& state_;
    UserDialogs& dialogs_;
    FormHeadings* headings_ = nullptr;
    std::array<StationPanel*, 2> panel_ = {};
    ResultBlock* result_ = nullptr;
    CoordinateFields* fields_ = nullptr;
};

}  // namespace ui
