#include "ui/main/FileCommands.h"

#include <ctime>
#include <vector>

#include <QFileInfo>

#include "app/FileKind.h"
#include "base/FileBytes.h"
#include "base/FileNames.h"
#include "base/TimeStamp.h"
#include "stations/Listing.h"
#include "stations/TextImport.h"
#include "ui/ComposedText.h"
#include "ui/DatabaseActions.h"
#include "ui/FileNameText.h"
#include "ui/UserDialogs.h"
#include "ui/main/Display.h"
#include "ui/main/MessageBar.h"
#include "ui/main/StationListFrame.h"
#include "ui/main/StationListView.h"

namespace ui {

using namespace Qt::StringLiterals;
using stations::ExchangeResult;

namespace {

// "QHT" is how the label is spelt.
const auto kDatabaseFilter = u"QHT-Dateien (*.qth)|*.QTH|alle Dateien (*.*)|*.*"_s;
const auto kListingFilter = u"LST-Dateien (*.lst;*.txt)|*.lst;*.txt|alle Dateien (*.*)|*.*"_s;
const auto kTextFilter = u"TXT-Dateien (*.txt)|*.txt|alle Dateien (*.*)|*.*"_s;

QString ReasonText(stations::SkipReason reason)
{
    switch (reason) {
    case stations::SkipReason::NoText: return u"kein Text"_s;
    case stations::SkipReason::NoPosition: return u"keine zwei Zahlen"_s;
    case stations::SkipReason::LatitudeOutOfRange: return u"Breite über 90 Grad"_s;
    case stations::SkipReason::LongitudeOutOfRange: return u"Länge über 360 Grad"_s;
    }
    return {};
}

QString WhyIgnored(const QString& file)
{
    const QFileInfo info(file);
    if (!info.exists()) {
        return u" gibt es nicht."_s;
    }
    return info.size() == 0 ? u" ist leer."_s : u" ist keine Stationsdatenbank."_s;
}

// How many lines, what happened to them, and the first of them.
QString LinesText(std::size_t count, const QString& what, const QStringList& first)
{
    if (count == 0) {
        return {};
    }
    return (count == 1 ? u"\n1 Zeile wurde "_s : u"\n%1 Zeilen wurden "_s.arg(count)) + what
           + u":\n"_s + first.join(u'\n')
           + (count > static_cast<std::size_t>(first.size()) ? u"\n..."_s : QString());
}

QString NotImportedText(const stations::ImportResult& result)
{
    QStringList skipped;
    for (const stations::SkippedLine& line : result.firstSkipped) {
        skipped << u"Zeile %1: %2"_s.arg(line.number).arg(ReasonText(line.reason));
    }
    QStringList cut;
    for (const std::size_t line : result.firstCut) {
        cut << u"Zeile %1: Text zu lang"_s.arg(line);
    }
    return LinesText(result.skipped, u"übersprungen"_s, skipped)
           + LinesText(result.cut, u"gekürzt"_s, cut);
}

}  // namespace

FileCommands::FileCommands(QWidget& window, app::AppState& state, UserDialogs& dialogs,
                           StationListFrame& list, Display& notice, MessageBar& messages)
    : window_(window), state_(state), dialogs_(dialogs), list_(list), notice_(notice),
      messages_(messages)
{
}

void FileCommands::Open()
{
    const QString file = dialogs_.OpenFile(
        &window_, {.title = u"QTH Datenbank öffnen"_s, .filter = kDatabaseFilter});
    if (file.isEmpty()) {
        return;
    }
    if (base::SameFile(Native(file), state_.session.backupName)) {
        dialogs_.Inform(&window_, {},
                        u"Die Datei "_s + file
                            + u" ist die Sicherung vom letzten Start, sie wird nicht zur "
                              u"Arbeitsdatei!\n„Anfügen“ holt ihre Einträge zurück."_s);
        return;
    }
    const ExchangeResult result =
        stations::Open(Native(file), {.database = state_.database,
                                      .workingFile = state_.configuration.workingFile,
                                      .oldBytes = state_.session.workingFileBytes});
    if (result == ExchangeResult::Done) {
        list_.TakeDatabaseChange({.isOnDisk = true});
    }
    Tell(result, file);
}

void FileCommands::Append()
{
    const QString file = dialogs_.OpenFile(
        &window_, {.title = u"QTH Datenbank anfügen"_s, .filter = kDatabaseFilter});
    if (file.isEmpty()) {
        return;
    }
    const ExchangeResult result = stations::AppendFile(Native(file), state_.database);
    if (result == ExchangeResult::Done) {
        list_.TakeAndTell();
    }
    Tell(result, file);
}

void FileCommands::SaveMarked()
{
    ExportMarked(list_.List1->MarkedRows());
}

void FileCommands::MoveOutMarked()
{
    const std::vector<std::size_t> marked = list_.List1->MarkedRows();
    if (ExportMarked(marked) && !marked.empty()) {
        state_.database.Delete(marked);
        list_.TakeAndTell();
    }
}

bool FileCommands::ExportMarked(const std::vector<std::size_t>& marked)
{
    const QString file = dialogs_.SaveFile(
        &window_, {.title = u"Ausgewählte Einträge sichern"_s, .filter = kDatabaseFilter},
        u"QTH"_s);
    if (file.isEmpty()) {
        return false;
    }
    const std::string name = Native(file);
    if (!MayReplace(&window_, state_, dialogs_, name)) {
        return false;
    }
    const std::error_code error = stations::SaveMarked(name, state_.database, marked);
    TellWriteError(&window_, dialogs_, error, name);
    return !error;
}

void FileCommands::WriteListing()
{
    const QString file = dialogs_.OpenOrCreateFile(&window_, {.filter = kListingFilter});
    if (file.isEmpty()) {
        return;
    }
    const std::string name = Native(file);
    if (!MayReplace(&window_, state_, dialogs_, name) || !MayListInto(name)) {
        return;
    }
    const std::string text =
        stations::ListingText(state_.database.Records(), state_.configuration.listingMode,
                              state_.configuration.degreeFormat, state_.numberFormat);
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    TellWriteError(&window_, dialogs_, base::WriteFile(name, base::ByteView(bytes, text.size())),
                   name);
}

void FileCommands::ImportText()
{
    const QString file = dialogs_.OpenFile(
        &window_, {.title = u"Excel Textfile import (TEST)"_s, .filter = kTextFilter});
    if (file.isEmpty()) {
        return;
    }
    const base::FileContents contents = base::ReadFile(Native(file));
    if (contents.status != base::FileStatus::Readable) {
        Tell(ExchangeResult::Unreadable, file);
        return;
    }
    const stations::ImportResult result = stations::ImportText(
        contents.bytes, base::TimeStamp(std::time(nullptr)), state_.database, ComposedUtf8);
    if (result.tooMany) {
        TellTooManyRecords(&window_, dialogs_);
        return;
    }
    const bool written = list_.TakeAndTell();
    const QString imported =
        (result.imported == 1 ? u"1 Eintrag importiert"_s
                              : u"%1 Einträge importiert"_s.arg(result.imported))
        + (written ? u"!"_s : u", aber nicht gespeichert!"_s);
    // The notice would hide behind the box.
    if (result.skipped > 0 || result.cut > 0) {
        dialogs_.Inform(&window_, {}, imported + NotImportedText(result));
    } else if (written) {
        notice_.ShowMessage(imported);
    }
}

bool FileCommands::MayListInto(const std::string& name)
{
    const auto refuse = [&](const QString& reason) {
        TellNotReplaced(&window_, dialogs_, name, reason);
        return false;
    };
    switch (app::KindOf(name)) {
    case app::FileKind::Missing: return true;
    case app::FileKind::Other:
        return dialogs_.AskOkCancel(&window_, u"Listing"_s, u"Datei existiert bereits. Löschen?"_s);
    case app::FileKind::Unreadable: return refuse(u"lässt sich nicht lesen"_s);
    case app::FileKind::Database: return refuse(u"ist eine Stationsdatenbank"_s);
    case app::FileKind::Adjustment: return refuse(u"ist eine Justagedatei"_s);
    case app::FileKind::Configuration: return refuse(u"ist eine Konfiguration"_s);
    }
    return false;
}

void FileCommands::Tell(ExchangeResult result, const QString& file)
{
    const QString name = u"Die Datei "_s + file;
    const auto inform = [&](const QString& reason) {
        dialogs_.Inform(&window_, {}, name + reason);
    };
    switch (result) {
    case ExchangeResult::Done: break;
    case ExchangeResult::Ignored: messages_.Tell(name + WhyIgnored(file)); break;
    case ExchangeResult::Damaged: inform(u" ist beschädigt und wird nicht gelesen!"_s); break;
    case ExchangeResult::Unreadable: inform(u" lässt sich nicht lesen!"_s); break;
    case ExchangeResult::TooMany: TellTooManyRecords(&window_, dialogs_); break;
    case ExchangeResult::NameTooLong:
        inform(u" lässt sich nicht als Arbeitsdatei merken: Der Name ist länger "
               u"als 512 Zeichen oder endet mit einem Leerzeichen!"_s);
        break;
    }
}

}  // namespace ui
