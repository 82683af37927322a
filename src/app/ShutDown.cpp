#include "app/ShutDown.h"

namespace app {

std::error_code SaveAtEnd(AppState& state)
{
    if (state.session.configurationSaved) {
        return {};
    }
    state.session.configurationSaved = true;
    stations::Configuration& configuration = state.configuration;
    configuration.station1Index = 0;
    configuration.station2Index = 0;
    configuration.station1 = state.shown.record[0];
    configuration.station2 = state.shown.record[1];
    return stations::WriteConfiguration(state.session.configurationName, configuration,
                                        state.session.configurationBytes)
        .error;
}

}  // namespace app
