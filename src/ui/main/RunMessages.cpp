#include "ui/main/RunMessages.h"

#include <QDir>

#include "ui/DatabaseActions.h"
#include "ui/FileNameText.h"
#include "ui/UserDialogs.h"
#include "ui/main/MessageBar.h"
#include "ui/main/StartTexts.h"

namespace ui {

using namespace Qt::StringLiterals;

void TellPassedOver(const app::SessionState& session, MessageBar& messages)
{
    if (!session.passedOverFolder.empty()) {
        messages.Tell(PassedOverText(session.passedOverFolder, QDir::currentPath()));
    }
}

bool TellStart(QWidget& window, UserDialogs& dialogs, MessageBar& messages,
               const app::StartReport& report)
{
    if (!report.failedWrites.empty()) {
        QStringList others;
        for (std::size_t i = 1; i < report.failedWrites.size(); ++i) {
            others << Shown(report.failedWrites[i]);
        }
        // One box: the cause is probably the same.
        TellWriteError(&window, dialogs, std::make_error_code(std::errc::io_error),
                       report.failedWrites.front(),
                       others.isEmpty() ? QString() : u"Ebenso: "_s + others.join(u", "_s));
    }
    if (report.fault
        && dialogs.AskOkCancel(&window, u"Kompasso Setup-Fehler"_s,
                               u"Setup-Fehler, bitte Work.* und *.cfg löschen!\nBeenden?"_s,
                               FaultText(*report.fault))) {
        return false;
    }
    for (const app::StartNotice& notice : report.notices) {
        messages.Tell(NoticeText(notice));
    }
    return true;
}

void TellKept(const app::AppState& state, MessageBar& messages, const stations::Written& written)
{
    // After an error the next write sets the same bytes aside.
    if (written.error) {
        return;
    }
    if (!written.keptAs.empty()) {
        messages.Tell(KeptText(state.configuration.workingFile, written.keptAs));
    }
    if (!written.backupKeptAs.empty()) {
        messages.Tell(KeptText(state.session.backupName, written.backupKeptAs));
    }
}

}  // namespace ui
