#include "ui/main/RunMessages.h"

#include <QDir>

#include "ui/DatabaseActions.h"
#include "ui/FileNameText.h"
#include "ui/UserDialogs.h"
#include "ui/main/MessageBar.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

QString FaultReason(app::SetupFault::Kind kind)
{
    using Kind = app::SetupFault::Kind;
    switch (kind) {
    case Kind::Unreadable: return u"Sie lässt sich nicht lesen."_s;
    case Kind::NoFolder:
        return u"Ihr Ordner ist nicht da; vielleicht ist ein Datenträger nicht eingesteckt."_s;
    case Kind::BadCount: return u"Die Zahl der Einträge in ihrem Kopf ist unmöglich."_s;
    case Kind::CutShort: return u"Sie endet vor ihrem letzten Eintrag."_s;
    case Kind::NoName: return u"Sie nennt keine Arbeitsdatei."_s;
    case Kind::NoMemory: return u"Für sie reicht der freie Speicher nicht."_s;
    }
    return {};
}

// Which file, what is wrong with it, and that it is as it was.
QString FaultText(const app::SetupFault& fault)
{
    QString text = u"Datei: "_s + Shown(fault.file) + u'\n' + FaultReason(fault.kind);
    if (!fault.sameNameHere.empty()) {
        text += u"\nHier im Programmordner liegt eine Datei gleichen Namens: "_s
                + Shown(fault.sameNameHere);
    }
    return text
           + u"\nAn der Datei wurde nichts geändert, und es muss nichts gelöscht werden. "
             u"„Abbrechen“ macht mit dem weiter, was lesbar war."_s;
}

QString NoticeText(const app::StartNotice& notice)
{
    using Kind = app::StartNotice::Kind;
    const QString file = Shown(notice.file);
    const QString other = Shown(notice.other);
    const QString workingFile = u"Die Arbeitsdatei "_s + file;
    const QString kept = notice.keptAs.empty()
                             ? QString()
                             : u" Ihre alten Bytes liegen in "_s + Shown(notice.keptAs) + u'.';
    switch (notice.kind) {
    case Kind::ForeignConfiguration:
        return file + u" enthielt keine Einstellungen: Es gelten die Vorgaben."_s + kept;
    case Kind::ConfigurationFound:
        return u"Die Einstellungen stehen in %1 (gesucht: %2)."_s.arg(other, file);
    case Kind::WorkingFileFound:
        return u"Die Arbeitsdatei ist %1 im Programmordner (in den Einstellungen stand %2)."_s.arg(
            other, file);
    case Kind::NewWorkingFile: {
        const QString made = u" fehlte: Eine neue, leere wurde angelegt"_s;
        return other.isEmpty() ? workingFile + made + u'.'
                               : u"Die Arbeitsdatei "_s + other + made + u": "_s + file + u'.';
    }
    case Kind::EmptyWorkingFile:
        return workingFile
               + u" enthielt kein einziges Byte: Sie ist jetzt eine leere Stationsdatenbank."_s;
    case Kind::ForeignWorkingFile:
        return workingFile + u" war keine Stationsdatenbank und wurde durch eine leere ersetzt."_s
               + kept;
    case Kind::BytesBehindRecords:
        return workingFile
               + u" enthält hinter dem letzten Eintrag noch Bytes, die nicht gelesen wurden; vor "
                 u"der ersten Änderung werden sie als .ALT beiseitegelegt."_s;
    case Kind::BackupReplaced:
        return u"Die Sicherung %1 enthielt andere Einträge; sie liegt jetzt in %2."_s.arg(
            file, Shown(notice.keptAs));
    }
    return {};
}

}  // namespace

void TellPassedOver(const app::SessionState& session, MessageBar& messages)
{
    if (!session.passedOverFolder.empty()) {
        messages.Tell(u"Der Ordner des Programms, "_s + Shown(session.passedOverFolder)
                      + u", lässt sich nicht beschreiben: Die Dateien liegen in "_s
                      + QDir::currentPath() + u'.');
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
    const auto tell = [&messages](const std::string& file, const std::string& keptAs) {
        if (!keptAs.empty()) {
            messages.Tell(u"Die alten Bytes der Datei "_s + Shown(file) + u" liegen jetzt in "_s
                          + Shown(keptAs) + u'.');
        }
    };
    tell(state.configuration.workingFile, written.keptAs);
    tell(state.session.backupName, written.backupKeptAs);
}

}  // namespace ui
