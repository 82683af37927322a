#include "app/StartUp.h"

#include <exception>
#include <utility>

#include "app/DefaultStations.h"

namespace app {

namespace {

using stations::ConfigurationStatus;
using stations::DatabaseStatus;

bool LoadConfiguration(AppState& state)
{
    stations::ConfigurationContents contents =
        stations::ReadConfiguration(state.session.configurationName);
    state.configuration = std::move(contents.configuration);
    state.session.configurationBytes = contents.oldBytes;
    switch (contents.status) {
    case ConfigurationStatus::Read: return true;
    case ConfigurationStatus::New:
    case ConfigurationStatus::Foreign:
        return !stations::WriteConfiguration(state.session.configurationName, state.configuration,
                                             state.session.configurationBytes);
    case ConfigurationStatus::Unreadable: break;
    }
    return false;
}

bool LoadDatabase(AppState& state)
{
    const std::string& name = state.configuration.workingFile;
    stations::DatabaseContents contents = stations::ReadDatabase(name);
    state.database = std::move(contents.database);
    state.session.workingFileBytes = contents.oldBytes;
    switch (contents.status) {
    case DatabaseStatus::Complete: return true;
    case DatabaseStatus::New:
    case DatabaseStatus::Foreign:
        return !stations::UpdateQTHFile(name, state.database, state.session.workingFileBytes);
    case DatabaseStatus::BadCount:
    case DatabaseStatus::CutShort:
    case DatabaseStatus::Unreadable: break;
    }
    return false;
}

}  // namespace

bool LoadAtStartUp(AppState& state)
{
    // Until they have been read, nobody knows what the two files hold.
    state.session.configurationBytes = stations::OldBytes::Unknown;
    state.session.workingFileBytes = stations::OldBytes::Unknown;
    try {
        return LoadConfiguration(state) && LoadDatabase(state)
               && !stations::WriteBackup(state.database);
    } catch (const std::exception&) {  // out of memory
        return false;
    }
}

StartStation StationAtStartUp(const stations::Configuration& configuration, int station)
{
    const bool first = station == 0;
    if ((first ? configuration.station1Index : configuration.station2Index) >= 0) {
        const stations::StationRecord& stored =
            first ? configuration.station1 : configuration.station2;
        return {.texts = stations::TextsOf(stored), .position = stored.Position()};
    }
    const BuiltInStation& builtIn = kDefaultStations[first ? 0 : 1];
    return {.texts = {.callsign = builtIn.callsign,
                      .name = builtIn.name,
                      .place = builtIn.place,
                      .frequency = {},
                      .remark = {},
                      .date = {}},
            .position = builtIn.position};
}

}  // namespace app
