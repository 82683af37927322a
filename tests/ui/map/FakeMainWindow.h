// The main window as far as the map window sees it; keeps what it was asked for.

#pragma once

#include <set>
#include <string>
#include <vector>

#include "app/AppState.h"
#include "app/MainWindowPort.h"
#include "stations/WorkingFile.h"

namespace ui {

class FakeMainWindow : public app::MainWindowPort {
public:
    explicit FakeMainWindow(app::AppState& state) : state_(state) {}

    void SetStation(int station, const stations::StationTexts& texts,
                    geo::GeoPosition position) override
    {
        panel[static_cast<std::size_t>(station)] = texts;
        state_.shown.position[static_cast<std::size_t>(station)] = position;
        calls.emplace_back("SetStation");
    }

    void S1S2_Update() override
    {
        for (const std::size_t station : {0U, 1U}) {
            state_.shown.record[station] =
                stations::BuildRecord(panel[station], state_.shown.position[station], "now");
        }
        calls.emplace_back("S1S2_Update");
    }

    std::error_code TakeDatabaseChange() override
    {
        calls.emplace_back("TakeDatabaseChange");
        return stations::UpdateQTHFile(state_.configuration.workingFile, state_.database,
                                       state_.session.workingFileBytes, state_.session.backupName)
            .error;
    }
    bool IsMarked(std::size_t index) const override { return marked.contains(index); }

    std::array<stations::StationTexts, 2> panel;
    std::set<std::size_t> marked;
    std::vector<std::string> calls;

private:
    app::AppState& state_;
};

}  // namespace ui
