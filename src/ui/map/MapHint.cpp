#include "ui/map/MapHint.h"

#include <vector>

#include "geo/Distance.h"
#include "geo/DistanceText.h"
#include "map/blend/ForwardBlend.h"
#include "map/blend/MapMath.h"
#include "map/blend/TriangleSurvey.h"

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

std::optional<double> MissedBy(const map::ReferenceTable& table, std::size_t index)
{
    const auto points = table.Points();
    std::vector<map::ReferencePoint> others(points.begin(), points.end());
    const map::ReferencePoint point = points[index];
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(index));
    std::vector<map::PlanePoint> places;
    places.reserve(others.size());
    for (const map::ReferencePoint& other : others) {
        places.push_back({.x = other.Longitude, .y = other.Latitude});
    }
    if (map::SurveyTriangles(places).usable == 0) {
        return std::nullopt;
    }
    map::ForwardBlend blend;
    blend.Prepare(others);
    const map::Pixel place = blend.At({.latitude = point.Latitude, .longitude = point.Longitude});
    return map::Hypot(place.x - point.X, place.y - point.Y);
}

std::string ReferenceHint(const app::AppState& state, std::size_t index)
{
    std::string hint = "Referenzpunkt " + std::to_string(index + 1);
    if (const std::optional<double> pixels = MissedBy(state.map.references, index)) {
        hint += "\nAbweichung von den übrigen: " + state.numberFormat(*pixels, "0.00") + " Pixel";
    }
    return hint;
}

}  // namespace ui
