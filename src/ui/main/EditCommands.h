// The commands of the menu "Bearbeiten": clean-up of the database and the mean of marked stations.

#pragma once

#include "app/AppState.h"
#include "stations/CleanUp.h"

namespace ui {

class MainForm;
class StationListFrame;

// The first three sort the database by the latitude key, in which it stays, show the list in that
// order and write the working file. With an empty database they write nothing.
class EditCommands {
public:
    EditCommands(app::AppState& state, MainForm& window, StationListFrame& list);

    void RemoveEqualEntries();                    // MnuGEE
    void MarkEqual(stations::Equality equality);  // MnuDopMark, MnuGlPMark
    void SetStation1ToMean();                     // MnuMiWert: nothing happens without marks

private:
    app::AppState& state_;
    MainForm& window_;
    StationListFrame& list_;
};

}  // namespace ui
