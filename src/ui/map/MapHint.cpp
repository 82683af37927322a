#include "ui/map/MapHint.h"

#include <optional>

#include "geo/Distance.h"
#include "geo/DistanceText.h"
#include "map/Georeference.h"
#include "map/LeaveOneOut.h"
#include "ui/map/MapPainter.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

// False where the references give no position.
bool GivesPositionAt(const app::AppState& state, plot::SurfacePoint pixel)
{
    const map::ReferenceTable& table = state.map.references;
    return !state.map.mapImage || !table.ReferenceMode()
           || map::GivesPosition(table, pixel.x, pixel.y,
                                 state.configuration.optimisedOutput ? map::Refinement::On
                                                                     : map::Refinement::Off);
}

}  // namespace

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

QString HintAt(const app::AppState& state, const MapPainter& painter, const plot::MapView& view,
               plot::SurfacePoint point)
{
    const std::optional<MarkerSource> marker = painter.MarkerAt(point);
    if (!marker) {
        const plot::SurfacePoint& clip = view.clipOrigin;
        return GivesPositionAt(state, {.x = clip.x + point.x, .y = clip.y + point.y})
                   ? QString()
                   : u"keine Position"_s;
    }
    std::string hint;
    switch (const std::size_t index = marker->index; marker->kind) {
    case MarkerSource::Kind::Station:
        hint = StationHint(state, state.shown.record[index], state.shown.position[index]);
        break;
    case MarkerSource::Kind::Reference:
        if (index < state.map.references.Points().size()) {
            hint = ReferenceHint(state, index);
        }
        break;
    case MarkerSource::Kind::Record:
        if (index < state.database.Count()) {
            const stations::StationRecord& record = state.database[index];
            hint = StationHint(state, record, record.Position());
        }
        break;
    }
    return QString::fromStdString(hint);
}

}  // namespace ui
