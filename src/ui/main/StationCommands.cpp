#include "ui/main/StationCommands.h"

#include <ctime>

#include "base/TimeStamp.h"
#include "ui/DatabaseActions.h"
#include "ui/main/Display.h"
#include "ui/main/MainForm.h"
#include "ui/main/SaveQuestion.h"
#include "ui/main/StationListFrame.h"
#include "ui/main/StationPanel.h"

namespace ui {

using namespace Qt::StringLiterals;

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
