#include "ui/map/MapHint.h"

#include <optional>

#include "geo/Distance.h"
#include "geo/DistanceText.h"
#include "map/LeaveOneOut.h"

namespace ui {

std::string StationHint(const app::AppState& state, const stations::StationRecord& record,
                        geo::GeoPosition position)
{
    std::string hint;
    for (const stations::Field field :
         {stations::Field::Callsign, stations::Field::Name, stations::Field::Place}) {
        if (const std::string text = record.Text(field); !text.empty()) {
            hint += text + '\n';
        }
    }
    const geo::GeoPosition station1 = state.shown.position[0];
    const geo::DirectionMode mode = state.configuration.compassDirection
                                        ? geo::DirectionMode::CompassPoint
                                        : geo::DirectionMode::Degrees;
    return hint + geo::DistanceLine(geo::Distance(station1, position), state.numberFormat) + '\n'
           + "Richtung von Station 1: "
           + geo::DirectionText(station1, position, mode, state.numberFormat);
}

std::string ReferenceHint(const app::AppState& state, std::size_t index)
{
    std::string hint = "Referenzpunkt " + std::to_string(index + 1);
    if (const std::optional<double> pixels = map::MissedBy(state.map.references, index)) {
        hint += "\nAbweichung von den übrigen: " + state.numberFormat(*pixels, "0.00") + " Pixel";
    }
    return hint;
}

}  // namespace ui
