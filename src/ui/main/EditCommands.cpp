#include "ui/main/EditCommands.h"

#include <optional>
#include <vector>

#include "ui/main/MainForm.h"
#include "ui/main/StationListFrame.h"
#include "ui/main/StationListView.h"

namespace ui {

EditCommands::EditCommands(app::AppState& state, MainForm& window, StationListFrame& list)
    : state_(state), window_(window), list_(list)
{
}

void EditCommands::RemoveEqualEntries()
{
    state_.list.key = stations::ListKey::Latitude;
    if (state_.database.Empty()) {
        return;
    }
    stations::RemoveEqualEntries(state_.database, state_.list.order);
    list_.TakeAndTell();
}

void EditCommands::MarkEqual(stations::Equality equality)
{
    state_.list.key = stations::ListKey::Latitude;
    const std::vector<std::size_t> equal =
        stations::FindEqualEntries(state_.database, equality, state_.list.order);
    if (!state_.database.Empty()) {
        list_.TakeAndTell({.show = [&] { list_.ShowMarks(equal); }});
    }
}

void EditCommands::SetStation1ToMean()
{
    const std::optional<stations::MeanStation> mean =
        stations::MeanOfMarked(state_.database, list_.List1->MarkedRows());
    if (mean) {
        window_.SetStation(0, mean->texts, mean->position);
    }
}

}  // namespace ui
