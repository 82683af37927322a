#include "ui/main/StartTexts.h"

#include "ui/FileNameText.h"

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

}  // namespace

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
    const QString kept = notice.keptAs.empty()
                             ? QString()
                             : u" Ihre alten Bytes liegen in "_s + Shown(notice.keptAs) + u'.';
    switch (notice.kind) {
    case Kind::ForeignConfiguration:
        return file + u" enthielt keine Einstellungen: Es gelten die Vorgaben."_s + kept;
    case Kind::ConfigurationFound:
        return u"Die Einstellungen stehen in "_s + Shown(notice.other) + u" (gesucht: "_s + file
               + u")."_s;
    case Kind::WorkingFileFound:
        return u"Die Arbeitsdatei ist "_s + Shown(notice.other)
               + u" im Programmordner (in den "
                 u"Einstellungen stand "_s
               + file + u")."_s;
    case Kind::NewWorkingFile:
        return u"Die Arbeitsdatei "_s + (notice.other.empty() ? file : Shown(notice.other))
               + u" fehlte: Eine neue, leere wurde angelegt"_s
               + (notice.other.empty() ? u"."_s : u": "_s + file + u'.');
    case Kind::EmptyWorkingFile:
        return u"Die Arbeitsdatei "_s + file
               + u" enthielt kein einziges Byte: Sie ist jetzt eine leere Stationsdatenbank."_s;
    case Kind::ForeignWorkingFile:
        return u"Die Arbeitsdatei "_s + file
               + u" war keine Stationsdatenbank und wurde durch eine leere ersetzt."_s + kept;
    case Kind::BytesBehindRecords:
        return u"Die Arbeitsdatei "_s + file
               + u" enthält hinter dem letzten Eintrag noch Bytes, die nicht gelesen wurden; vor "
                 u"der ersten Änderung werden sie als .ALT beiseitegelegt."_s;
    case Kind::BackupReplaced:
        return u"Die Sicherung "_s + file + u" enthielt andere Einträge; sie liegt jetzt in "_s
               + Shown(notice.keptAs) + u'.';
    }
    return {};
}

QString KeptText(const std::string& file, const std::string& keptAs)
{
    return u"Die alten Bytes der Datei "_s + Shown(file) + u" liegen jetzt in "_s + Shown(keptAs)
           + u'.';
}

QString PassedOverText(const std::string& ownFolder, const QString& used)
{
    return u"Der Ordner des Programms, "_s + Shown(ownFolder)
           + u", lässt sich nicht beschreiben: Die Dateien liegen in "_s + used + u'.';
}

}  // namespace ui
