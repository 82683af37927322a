// The way of a station from the list into a panel and from a panel into the database.

#pragma once

#include <array>

#include "app/AppState.h"

namespace ui {

class Display;
class MainForm;
class StationListFrame;
class StationPanel;
class UserDialogs;

class StationCommands {
public:
    StationCommands(app::AppState& state, UserDialogs& dialogs, MainForm& window,
                    std::array<StationPanel*, 2> panel, StationListFrame& list, Display& notice);

    // A panel's station as a record of this moment.
    stations::StationRecord NewRecord(int station) const;
    // What a click on a line does in the mode of the list.
    void TakeLine(int row);
    void Save(int station);  // SA

private:
    app::AppState& state_;
    UserDialogs& dialogs_;
    MainForm& window_;
    std::array<StationPanel*, 2> panel_;
    StationListFrame& list_;
    Display& notice_;
};

}  // namespace ui
