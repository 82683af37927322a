// What the main window tells of its own accord: about the start of a run and about its writes.

#pragma once

#include "app/StartUp.h"

class QWidget;

namespace ui {

class MessageBar;
class UserDialogs;

// That the files do not lie in the program's own folder, if that is so.
void TellPassedOver(const app::SessionState& session, MessageBar& messages);

// False when the user wants the program to end.
bool TellStart(QWidget& window, UserDialogs& dialogs, MessageBar& messages,
               const app::StartReport& report);

// Where the bytes are that a write of the working file has replaced.
void TellKept(const app::AppState& state, MessageBar& messages, const stations::Written& written);

}  // namespace ui
