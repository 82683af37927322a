// The commands that move records between the database and other files.

#pragma once

#include <string>

#include <QString>

#include "app/AppState.h"
#include "stations/Exchange.h"

class QWidget;

namespace ui {

class Display;
class MessageBar;
class StationListFrame;
class UserDialogs;

// Cancelling a file dialog ends each of them without a word.
class FileCommands {
public:
    FileCommands(QWidget& window, app::AppState& state, UserDialogs& dialogs,
                 StationListFrame& list, Display& notice, MessageBar& messages);

    void Open();           // MnuOpen: another database file becomes the working file
    void Append();         // MnuAppend: its records come behind those of the database
    void SaveMarked();     // Command7
    void MoveOutMarked();  // Command6: like SaveMarked, then the marked records are removed
    void WriteListing();   // MnuList
    void ImportText();     // MnuTest

private:
    // Writes the marked records to a file that the user chooses; false when that was not done.
    bool ExportMarked(const std::vector<std::size_t>& marked);
    // Asks about a file that exists. False, with a message, for one that holds stations, reference
    // points or settings, or that nobody can read.
    bool MayListInto(const std::string& name);
    void Tell(stations::ExchangeResult result, const QString& file);

    QWidget& window_;
    app::AppState& state_;
    UserDialogs& dialogs_;
    StationListFrame& list_;
    Display& notice_;
    MessageBar& messages_;
};

}  // namespace ui
