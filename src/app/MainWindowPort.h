// What the map window asks of the main window.

#pragma once

#include <cstddef>
#include <system_error>

#include "geo/GeoPosition.h"
#include "stations/StationRecord.h"

namespace app {

class MainWindowPort {
public:
    MainWindowPort() = default;
    MainWindowPort(const MainWindowPort&) = delete;
    MainWindowPort& operator=(const MainWindowPort&) = delete;
    virtual ~MainWindowPort() = default;

    // Writes a station into its panel: the texts, then the position as plain decimal text, from
    // which every other form and the result follow. 0 = Station 1.
    virtual void SetStation(int station, const stations::StationTexts& texts,
                            geo::GeoPosition position) = 0;

    // Builds the shared records of Station 1 and Station 2 from the panels.
    virtual void S1S2_Update() = 0;

    // The one door for what has changed in the database: fills the station list, rewrites the
    // working file, announces the change. The error of the write, of which nobody has told yet.
    virtual std::error_code TakeDatabaseChange() = 0;

    // True when line `index` of the station list is marked.
    virtual bool IsMarked(std::size_t index) const = 0;
};

}  // namespace app
