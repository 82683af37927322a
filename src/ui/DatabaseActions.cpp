#include "ui/DatabaseActions.h"

#include "app/OwnFiles.h"
#include "ui/FileNameText.h"
#include "ui/UserDialogs.h"

namespace ui {

using namespace Qt::StringLiterals;

void TellWriteError(QWidget* parent, UserDialogs& dialogs, std::error_code error,
                    const std::string& fileName, const QString& informative)
{
    if (!error) {
        return;
    }
    dialogs.Inform(parent, u"Schreibfehler"_s,
                   u"Das Schreiben auf die Datei "_s + Shown(fileName)
                       + u" schlug fehl!\nBitte Schreibschutz überprüfen und ggf. rücksetzen!"_s,
                   informative);
}

void TellNotReplaced(QWidget* parent, UserDialogs& dialogs, const std::string& fileName,
                     const QString& reason)
{
    dialogs.Inform(parent, {},
                   u"Die Datei "_s + Shown(fileName) + u' ' + reason
                       + u", sie wird nicht überschrieben!"_s);
}

bool MayReplace(QWidget* parent, const app::AppState& state, UserDialogs& dialogs,
                const std::string& fileName)
{
    if (!app::IsOwnFile(state, fileName)) {
        return true;
    }
    TellNotReplaced(parent, dialogs, fileName, u"benutzt das Programm selbst"_s);
    return false;
}

void TellTooManyRecords(QWidget* parent, UserDialogs& dialogs)
{
    dialogs.Inform(parent, {},
                   u"Fehler: Zu viele Datensätze. Diese Version kann leider nur maximal 25000 "
                   u"Datensätze bearbeiten"_s);
}

bool AppendRecord(QWidget* parent, app::AppState& state, UserDialogs& dialogs,
                  const stations::StationRecord& record)
{
    const bool appended = state.database.Append(record);
    if (!appended) {
        TellTooManyRecords(parent, dialogs);
    }
    return appended;
}

}  // namespace ui
