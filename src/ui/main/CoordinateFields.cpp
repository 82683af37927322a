#include "ui/main/CoordinateFields.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include <QRadioButton>

#include "base/NumberText.h"
#include "geo/AngleText.h"
#include "geo/Distance.h"
#include "geo/DistanceText.h"
#include "geo/GaussKrueger.h"
#include "geo/Locator.h"
#include "geo/Utm.h"
#include "ui/main/FormHeadings.h"
#include "ui/main/ResultBlock.h"
#include "ui/main/StationPanel.h"

namespace ui {

using app::EntryGroup;

namespace {

struct Field {
    EntryField* StationPanel::*control;
    EntryGroup group;
};

constexpr Field kFields[] = {
    {&StationPanel::Text1, EntryGroup::Locator},
    {&StationPanel::Text2, EntryGroup::Decimal},
    {&StationPanel::Text3, EntryGroup::Decimal},
    {&StationPanel::Text4, EntryGroup::DegreeMinute},
    {&StationPanel::Text5, EntryGroup::DegreeMinute},
    {&StationPanel::Text6, EntryGroup::DegreeMinute},
    {&StationPanel::Text7, EntryGroup::DegreeMinute},
    {&StationPanel::Text8, EntryGroup::DegreeMinute},
    {&StationPanel::Text9, EntryGroup::DegreeMinute},
    {&StationPanel::Text10, EntryGroup::DegreeMinute},
    {&StationPanel::Text11, EntryGroup::DegreeMinute},
    {&StationPanel::Text12, EntryGroup::GaussKrueger},
    {&StationPanel::Text13, EntryGroup::GaussKrueger},
    {&StationPanel::Text20, EntryGroup::Utm},
    {&StationPanel::Text21, EntryGroup::Utm},
    {&StationPanel::Text22, EntryGroup::Utm},
};

// The forms in the order in which they follow a change; the edited one is passed over.
constexpr EntryGroup kRefreshOrder[] = {EntryGroup::Decimal, EntryGroup::DegreeMinute,
                                        EntryGroup::Locator, EntryGroup::GaussKrueger,
                                        EntryGroup::Utm};

bool IsFinite(const geo::GeoPosition& position)
{
    return std::isfinite(position.latitude) && std::isfinite(position.longitude);
}

// A form shows both coordinates or none.
geo::GeoPosition WholePosition(const geo::GeoPosition& position)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    return IsFinite(position) ? position : geo::GeoPosition{kNone, kNone};
}

void Show(EntryField* field, const std::string& text)
{
    field->Show(QString::fromStdString(text));
}

}  // namespace

CoordinateFields::CoordinateFields(app::AppState& state, std::array<StationPanel*, 2> panel,
                                   FormHeadings& headings, ResultBlock& result, QObject* parent)
    : QObject(parent), state_(state), panel_(panel), headings_(headings), result_(result)
{
    for (StationPanel* const p : panel_) {
        Connect(*p);
    }
    for (QRadioButton* const option : headings_.Option2) {
        connect(option, &QRadioButton::clicked, this, &CoordinateFields::Option2Clicked);
    }
}

void CoordinateFields::Connect(StationPanel& panel)
{
    for (const Field& field : kFields) {
        EntryField* const text = panel.*field.control;
        connect(text, &EntryField::Focused, this,
                [this, group = field.group] { state_.entry.activeGroup = group; });
        // textChanged, not textEdited: setting a station from elsewhere relies on it.
        connect(text, &EntryField::textChanged, this,
                [this, &panel, text, group = field.group] { Changed(panel, text, group); });
    }
}

void CoordinateFields::Changed(StationPanel& panel, const EntryField* field, EntryGroup group)
{
    if (state_.entry.activeGroup != group) {
        return;
    }
    Read(panel, field, group);
    for (const EntryGroup form : kRefreshOrder) {
        if (form != group) {
            ShowForm(panel.station, form);
        }
    }
    Entfernung();
}

void CoordinateFields::Read(StationPanel& panel, const EntryField* field, EntryGroup group)
{
    geo::GeoPosition& position = state_.shown.position[static_cast<std::size_t>(panel.station)];
    const base::NumberFormat& format = state_.numberFormat;
    const auto numberIn = [&format](const EntryField* f) {
        return format.Read(f->text().toStdString());
    };
    switch (group) {
    case EntryGroup::Locator:
        position = geo::LocatorToPosition(panel.Text1->text().toStdString());
        break;
    case EntryGroup::Decimal: {
        // Only the coordinate that was typed: the other keeps more digits than its field shows,
        // unless neither field shows any.
        const bool both = !IsFinite(position);
        if (both || field == panel.Text2) {
            position.longitude = numberIn(panel.Text2);
        }
        if (both || field == panel.Text3) {
            position.latitude = numberIn(panel.Text3);
        }
        break;
    }
    case EntryGroup::DegreeMinute: {
        geo::DegreeMinuteTexts texts;
        std::ranges::transform(
            panel.DegreeMinuteFields(), texts.begin(),
            [&format](const EntryField* f) { return format.Repair(f->text().toStdString()); });
        position = geo::ReadDegreeMinutes(texts, state_.configuration.degreeFormat);
        break;
    }
    case EntryGroup::GaussKrueger:
        position =
            geo::GkToGeo({.easting = numberIn(panel.Text12), .northing = numberIn(panel.Text13)},
                         state_.configuration.datum);
        break;
    case EntryGroup::Utm:
        position =
            geo::UtmToGeo(numberIn(panel.Text20), numberIn(panel.Text21), numberIn(panel.Text22));
        break;
    case EntryGroup::None: break;
    }
}

void CoordinateFields::ShowForm(int station, EntryGroup form)
{
    switch (form) {
    case EntryGroup::Decimal: ShowDecimal(station); break;
    case EntryGroup::DegreeMinute: GRDMINSEC(station); break;
    case EntryGroup::Locator: ShowLocator(station); break;
    case EntryGroup::GaussKrueger: GeoGk(station); break;
    case EntryGroup::Utm: GeoUTM(station); break;
    case EntryGroup::None: break;
    }
}

void CoordinateFields::ShowDecimal(int station)
{
    const auto index = static_cast<std::size_t>(station);
    const geo::GeoPosition position = WholePosition(state_.shown.position[index]);
    Show(panel_[index]->Text2, geo::DecimalText(position.longitude, state_.numberFormat));
    Show(panel_[index]->Text3, geo::DecimalText(position.latitude, state_.numberFormat));
}

void CoordinateFields::GRDMINSEC(int station)
{
    const auto index = static_cast<std::size_t>(station);
    const geo::DegreeMinuteTexts texts = geo::FieldTexts(geo::GRDMINSEC(
        WholePosition(state_.shown.position[index]), state_.configuration.degreeFormat));
    const std::array<EntryField*, 8> fields = panel_[index]->DegreeMinuteFields();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        Show(fields[i], texts[i]);
    }
}

void CoordinateFields::ShowLocator(int station)
{
    const auto index = static_cast<std::size_t>(station);
    const geo::GeoPosition& position = state_.shown.position[index];
    Show(panel_[index]->Text1, geo::PositionToLocator(position.latitude, position.longitude));
}

void CoordinateFields::GeoGk(int station)
{
    const auto index = static_cast<std::size_t>(station);
    const geo::GridPosition grid =
        geo::GeoGk(state_.shown.position[index], state_.configuration.datum);
    const bool finite = std::isfinite(grid.easting) && std::isfinite(grid.northing);
    const base::NumberFormat& format = state_.numberFormat;
    Show(panel_[index]->Text12, finite ? geo::GridText(grid.easting, format) : std::string());
    Show(panel_[index]->Text13, finite ? geo::GridText(grid.northing, format) : std::string());
}

void CoordinateFields::GeoUTM(int station)
{
    if (state_.entry.activeGroup == EntryGroup::Utm) {
        return;
    }
    const auto index = static_cast<std::size_t>(station);
    const geo::UtmPosition utm = geo::GeoUTM(state_.shown.position[index]);
    const bool finite = std::isfinite(utm.easting) && std::isfinite(utm.northing);
    Show(panel_[index]->Text20, finite ? std::to_string(utm.zone) : std::string());
    Show(panel_[index]->Text22, finite ? state_.numberFormat(utm.northing, "0") : std::string());
    Show(panel_[index]->Text21, finite ? state_.numberFormat(utm.easting, "0") : std::string());
}

void CoordinateFields::Entfernung()
{
    const auto& [station1, station2] = state_.shown.position;
    const geo::DirectionMode mode = state_.configuration.compassDirection
                                        ? geo::DirectionMode::CompassPoint
                                        : geo::DirectionMode::Degrees;
    const base::NumberFormat& format = state_.numberFormat;
    result_.Show(geo::DistanceLine(geo::Distance(station1, station2), format),
                 geo::DirectionText(station1, station2, mode, format),
                 geo::DirectionText(station2, station1, mode, format));
    emit StationsChanged();
}

void CoordinateFields::SetPosition(int station, geo::GeoPosition position)
{
    if (!IsFinite(position)) {
        SetPositionWithoutResult(station, position);
        return;
    }
    StationPanel& panel = *panel_[static_cast<std::size_t>(station)];
    state_.entry.activeGroup = EntryGroup::Decimal;
    const auto write = [&](EntryField* field, double degrees) {
        const QString text = QString::fromStdString(state_.numberFormat.Plain(degrees));
        if (field->text() == text) {
            // No change event comes, but the position may have more digits than its field showed.
            Changed(panel, field, EntryGroup::Decimal);
        } else {
            field->Show(text);
        }
    };
    write(panel.Text2, position.longitude);
    write(panel.Text3, position.latitude);
}

void CoordinateFields::SetPositionWithoutResult(int station, geo::GeoPosition position)
{
    state_.entry.activeGroup = EntryGroup::None;  // an emptied field must not be read as 0
    state_.shown.position[static_cast<std::size_t>(station)] = position;
    for (const EntryGroup form : kRefreshOrder) {
        ShowForm(station, form);
    }
    state_.entry.activeGroup = EntryGroup::Decimal;
    Entfernung();
}

void CoordinateFields::Set_GMS_String()
{
    const geo::DegreeMinuteMode mode = state_.configuration.degreeFormat;
    headings_.Option2[mode == geo::DegreeMinuteMode::Seconds ? 1 : 0]->setChecked(true);
    for (StationPanel* const panel : panel_) {
        panel->ShowUnits(mode);
        GRDMINSEC(panel->station);
    }
}

void CoordinateFields::TakeConfiguration()
{
    state_.entry.activeGroup = EntryGroup::Decimal;
    for (const int station : {0, 1}) {
        GRDMINSEC(station);
    }
    for (const int station : {0, 1}) {
        GeoGk(station);
    }
    for (const int station : {0, 1}) {
        GeoUTM(station);
    }
    Entfernung();
}

void CoordinateFields::Option2Clicked()
{
    state_.entry.activeGroup = EntryGroup::None;
    state_.configuration.degreeFormat = headings_.Option2[0]->isChecked()
                                            ? geo::DegreeMinuteMode::Hundredths
                                            : geo::DegreeMinuteMode::Seconds;
    Set_GMS_String();
}

}  // namespace ui
