// What the user is told when a change of the station database or of a file is not to be.

#pragma once

#include <string>
#include <system_error>

#include <QString>

#include "app/AppState.h"

class QWidget;

namespace ui {

class UserDialogs;

// The message about a file that could not be written, with more below it if there is more to say;
// nothing without an error.
void TellWriteError(QWidget* parent, UserDialogs& dialogs, std::error_code error,
                    const std::string& fileName, const QString& informative = {});

// Says that a file is not overwritten; `reason` follows its name.
void TellNotReplaced(QWidget* parent, UserDialogs& dialogs, const std::string& fileName,
                     const QString& reason);

// False, with a message, for a file that the program keeps itself.
bool MayReplace(QWidget* parent, const app::AppState& state, UserDialogs& dialogs,
                const std::string& fileName);

// Says that the database holds all the records it can.
void TellTooManyRecords(QWidget* parent, UserDialogs& dialogs);

// Appends a record, or says why not.
bool AppendRecord(QWidget* parent, app::AppState& state, UserDialogs& dialogs,
                  const stations::StationRecord& record);

}  // namespace ui
