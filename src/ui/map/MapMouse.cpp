#include "ui/map/MapMouse.h"

#include <cmath>
#include <ctime>

#include <QString>

#include "base/TimeStamp.h"
#include "geo/AngleText.h"
#include "map/Georeference.h"
#include "ui/DatabaseActions.h"
#include "ui/UserDialogs.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

bool IsFinite(geo::GeoPosition position)
{
    return std::isfinite(position.latitude) && std::isfinite(position.longitude);
}

}  // namespace

MapMouse::MapMouse(app::AppState& state, const MapImage& image, app::MainWindowPort& mainWindow,
                   UserDialogs& dialogs, QWidget* window)
    : state_(state), image_(image), mainWindow_(mainWindow), dialogs_(dialogs), window_(window)
{
}

geo::GeoPosition MapMouse::Convert(double tolerance, bool refined)
{
    const map::ReferenceTable& table = state_.map.references;
    if (!table.ReferenceMode()) {
        deviation_ = 0.0;
        return plot::InterpolatedPosition(
            state_.map.edges, image_.Size(),
            {.x = static_cast<double>(x_), .y = static_cast<double>(y_)});
    }
    const map::FoundPosition found = map::PixelToGeo(
        table, x_, y_, tolerance, refined ? map::Refinement::On : map::Refinement::Off);
    deviation_ = found.error;
    return found.position;
}

geo::GeoPosition MapMouse::ClickedPosition()
{
    const geo::GeoPosition position =
        Convert(map::kClickTolerance, state_.configuration.optimisedOutput);
    return IsFinite(position) ? position : geo::GeoPosition{};
}

QString MapMouse::Press(plot::SurfacePoint point, plot::SurfacePoint clipOrigin)
{
    x_ = clipOrigin.x + point.x;
    y_ = clipOrigin.y + point.y;
    // The readout has a switch of its own and a coarser tolerance than a click.
    const geo::GeoPosition position =
        Convert(map::kPointerTolerance, state_.configuration.optimisedDisplay);
    const geo::DegreeMinuteMode mode = state_.configuration.degreeFormat;
    return QString::fromStdString(geo::ListingAngle(position.latitude, mode) + ' '
                                  + geo::ListingAngle(position.longitude, mode));
}

stations::StationTexts MapMouse::TextsOf(const std::string& callsign) const
{
    return {
        .callsign = callsign,
        .name = {},
        .place = "X/Y: " + std::to_string(x_) + ' ' + std::to_string(y_),
        .frequency = {},
        .remark = "Projektionsabw: " + state_.numberFormat(deviation_, "0.00") + " Pixel",
        .date = base::TimeStamp(std::time(nullptr)),
    };
}

void MapMouse::SetStation(int station)
{
    const geo::GeoPosition position = ClickedPosition();
    mainWindow_.SetStation(station, TextsOf("Station " + std::to_string(station + 1)), position);
    mainWindow_.S1S2_Update();
}

bool MapMouse::AddLandmark()
{
    const geo::GeoPosition position = ClickedPosition();
    const base::NumberFormat& format = state_.numberFormat;
    const stations::StationTexts texts = TextsOf("LM" + format(landmarks_ + 1.0, "000"));
    if (!AppendRecord(window_, state_, dialogs_,
                      stations::BuildRecord(texts, position, texts.date))) {
        return false;
    }
    ++landmarks_;
    TellWriteError(window_, dialogs_, mainWindow_.TakeDatabaseChange(),
                   state_.configuration.workingFile);
    return true;
}

bool MapMouse::AddReference(plot::MapView& view)
{
    const geo::GeoPosition station2 = state_.shown.position[1];
    if (!IsFinite(station2)) {
        dialogs_.Inform(window_, {},
                        u"Station 2 hat keine Position: Sie wird nicht als Referenz gesetzt!"_s);
        return false;
    }
    switch (state_.map.references.AddStation2Reference(x_, y_, station2)) {
    case map::AddResult::Added: view.grid.reset(); return true;
    case map::AddResult::Duplicate:
        dialogs_.Inform(window_, {}, u"Diese Referenz existiert bereits!"_s);
        break;
    case map::AddResult::Full:
        dialogs_.Inform(window_, {}, u"Mehr Referenzpunkte fasst die Karte nicht."_s);
        break;
    }
    return false;
}

bool MapMouse::Click(plot::MapView& view)
{
    switch (state_.map.clickMode) {
    case app::ClickMode::Nop: return false;
    case app::ClickMode::SetStation1: SetStation(0); break;
    case app::ClickMode::SetStation2: SetStation(1); break;
    case app::ClickMode::AddLandmark: return AddLandmark();
    case app::ClickMode::Station2AsReference: return AddReference(view);
    case app::ClickMode::DeleteReference:
        state_.map.references.DeleteNearestReference(x_, y_);
        break;
    case app::ClickMode::RouteStart:
        view.route.Append({.pen = plot::Pen::Up, .position = ClickedPosition()});
        state_.map.clickMode = app::ClickMode::RouteContinue;
        break;
    case app::ClickMode::RouteContinue:
        view.route.Append({.pen = plot::Pen::Down, .position = ClickedPosition()});
        break;
    }
    return true;
}

}  // namespace ui
