#include "ui/main/CoordinateForms.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "geo/AngleText.h"
#include "geo/GaussKrueger.h"
#include "geo/Locator.h"
#include "geo/Utm.h"
#include "ui/main/StationPanel.h"

namespace ui {

using app::EntryGroup;

namespace {

// A form shows both coordinates or none.
geo::GeoPosition WholePosition(const geo::GeoPosition& position)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    return IsFinite(position) ? position : geo::GeoPosition{kNone, kNone};
}

}  // namespace

bool IsFinite(const geo::GeoPosition& position)
{
    return std::isfinite(position.latitude) && std::isfinite(position.longitude);
}

void ReadForm(app::AppState& state, const StationPanel& panel, EntryGroup form,
              const EntryField* edited)
{
    geo::GeoPosition& position = state.shown.position[static_cast<std::size_t>(panel.station)];
    const auto text = [&panel](std::size_t i) { return panel.Text[i]->text().toStdString(); };
    const auto number = [&](std::size_t i) { return state.numberFormat.Read(text(i)); };
    switch (form) {
    case EntryGroup::Locator: position = geo::LocatorToPosition(text(1)); break;
    case EntryGroup::Decimal: {
        // Only the coordinate that was typed: the other keeps more digits than its field shows,
        // unless neither field shows any.
        const bool both = !IsFinite(position);
        if (both || edited == panel.Text[2]) {
            position.longitude = number(2);
        }
        if (both || edited == panel.Text[3]) {
            position.latitude = number(3);
        }
        break;
    }
    case EntryGroup::DegreeMinute: {
        geo::DegreeMinuteTexts texts;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            texts[i] = state.numberFormat.Repair(text(4 + i));
        }
        position = geo::ReadDegreeMinutes(texts, state.configuration.degreeFormat);
        break;
    }
    case EntryGroup::GaussKrueger:
        position = geo::GkToGeo({.easting = number(12), .northing = number(13)},
                                state.configuration.datum);
        break;
    case EntryGroup::Utm: position = geo::UtmToGeo(number(20), number(21), number(22)); break;
    case EntryGroup::None: break;
    }
}

void ShowForm(const app::AppState& state, const StationPanel& panel, EntryGroup form)
{
    const geo::GeoPosition& position =
        state.shown.position[static_cast<std::size_t>(panel.station)];
    const base::NumberFormat& format = state.numberFormat;
    const auto show = [&panel](std::size_t i, const std::string& text) {
        panel.Text[i]->Show(QString::fromStdString(text));
    };
    switch (form) {
    case EntryGroup::Decimal:
        show(2, geo::DecimalText(WholePosition(position).longitude, format));
        show(3, geo::DecimalText(WholePosition(position).latitude, format));
        break;
    case EntryGroup::DegreeMinute: {
        const geo::DegreeMinuteTexts texts = geo::FieldTexts(
            geo::GRDMINSEC(WholePosition(position), state.configuration.degreeFormat));
        for (std::size_t i = 0; i < texts.size(); ++i) {
            show(4 + i, texts[i]);
        }
        break;
    }
    case EntryGroup::Locator:
        show(1, geo::PositionToLocator(position.latitude, position.longitude));
        break;
    case EntryGroup::GaussKrueger: {
        const geo::GridPosition grid = geo::GeoGk(position, state.configuration.datum);
        const bool finite = std::isfinite(grid.easting) && std::isfinite(grid.northing);
        show(12, finite ? geo::GridText(grid.easting, format) : std::string());
        show(13, finite ? geo::GridText(grid.northing, format) : std::string());
        break;
    }
    case EntryGroup::Utm: {
        const geo::UtmPosition utm = geo::GeoUTM(position);
        const bool finite = std::isfinite(utm.easting) && std::isfinite(utm.northing);
        show(20, finite ? std::to_string(utm.zone) : std::string());
        show(22, finite ? format(utm.northing, "0") : std::string());
        show(21, finite ? format(utm.easting, "0") : std::string());
        break;
    }
    case EntryGroup::None: break;
    }
}

}  // namespace ui
