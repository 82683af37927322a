#include "ui/main/StationCommands.h"

#include <ctime>

#include "base/TimeStamp.h"
#include "ui/DatabaseActions.h"
#include "ui/UserDialogs.h"
#include "ui/main/CoordinateForms.h"
#include "ui/main/Display.h"
#include "ui/main/MainForm.h"
#include "ui/main/StationListFrame.h"
#include "ui/main/StationPanel.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

// False, with a message, for a position that is not finite; false, too, when the texts are together
// too long for a record and the user, asked, does not want them cut. `now` stands in for an empty
// date.
bool MayStore(QWidget& window, UserDialogs& dialogs, int station,
              const stations::StationTexts& texts, geo::GeoPosition position, std::string_view now)
{
    const QString name = u"Station %1"_s.arg(station + 1);
    if (!IsFinite(position)) {
        dialogs.Inform(&window, {},
                       u"Die Koordinaten von "_s + name
                           + u" ergeben keine Position, der Eintrag wird nicht gesichert!"_s);
        return false;
    }
    // In the order of stations::Field.
    const QStringList names = {u"Rufzeichen"_s, u"Name"_s,      u"Ort"_s,
                               u"Frequenz"_s,   u"Anmerkung"_s, u"Datum"_s};
    QStringList cut;
    for (const stations::Field field : stations::CutFields(texts, now)) {
        cut << names.value(static_cast<int>(field));
    }
    return cut.isEmpty()
           || dialogs.AskOkCancel(
               &window, u"Sichern"_s,
               u"Die Texte von "_s + name
                   + u" sind zusammen zu lang für einen Eintrag. Gekürzt oder weggelassen:\n"_s
                   + cut.join(u", "_s) + u"\nTrotzdem sichern?"_s);
}

}  // namespace

StationCommands::StationCommands(app::AppState& state, UserDialogs& dialogs, MainForm& window,
                                 std::array<StationPanel*, 2> panel, StationListFrame& list,
                                 Display& notice)
    : state_(state), dialogs_(dialogs), window_(window), panel_(panel), list_(list), notice_(notice)
{
}

stations::StationRecord StationCommands::NewRecord(int station) const
{
    return stations::BuildRecord(panel_[static_cast<std::size_t>(station)]->Texts(),
                                 state_.shown.position[static_cast<std::size_t>(station)],
                                 base::TimeStamp(std::time(nullptr)));
}

void StationCommands::TakeLine(int row)
{
    const auto index = static_cast<std::size_t>(row);
    const app::ListMode mode = state_.list.mode;
    if (mode == app::ListMode::Nop || index >= state_.database.Count()) {
        return;
    }
    const int station = state_.list.targetPanel;
    const stations::StationRecord record = state_.database[index];
    window_.SetStation(station, stations::TextsOf(record), record.Position());
    if (mode == app::ListMode::Clear) {
        state_.database.Delete(index);
        // Shown for loading: a deletion does not stay in delete mode.
        list_.TakeAndTell({.show = [=, this] { list_.Show(app::ListMode::Get, station); }});
    }
    list_.ResetSortCombo();
}

void StationCommands::Save(int station)
{
    const stations::StationTexts texts = panel_[static_cast<std::size_t>(station)]->Texts();
    const geo::GeoPosition position = state_.shown.position[static_cast<std::size_t>(station)];
    const std::string now = base::TimeStamp(std::time(nullptr));
    const bool room = state_.database.Count() < stations::kMaxRecords;
    if ((room && !MayStore(window_, dialogs_, station, texts, position, now))
        || !AppendRecord(&window_, state_, dialogs_, stations::BuildRecord(texts, position, now))) {
        return;
    }
    if (list_.TakeAndTell()) {
        notice_.ShowMessage(u"Eintrag gespeichert!"_s);
    }
}

}  // namespace ui
