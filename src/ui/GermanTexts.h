// Qt's own texts (buttons, context menus, file dialogs) in German, whatever the system's language.

#pragma once

namespace ui {

// Installs the translation on the running application: the one of the installed Qt, or else the
// copy inside the program.
void InstallGermanTexts();

}  // namespace ui
