#include "ui/main/CoordinateFields.h"

#include <QRadioButton>

#include "geo/Distance.h"
#include "geo/DistanceText.h"
#include "ui/main/CoordinateForms.h"
#include "ui/main/ResultBlock.h"
#include "ui/main/StationPanel.h"

namespace ui {

using app::EntryGroup;

namespace {

constexpr struct {
    std::size_t firstField;
    std::size_t lastField;
    EntryGroup group;
} kForms[] = {
    {1, 1, EntryGroup::Locator},       {2, 3, EntryGroup::Decimal},
    {4, 11, EntryGroup::DegreeMinute}, {12, 13, EntryGroup::GaussKrueger},
    {20, 22, EntryGroup::Utm},
};

// The forms in the order in which they follow a change; the edited one is passed over.
constexpr EntryGroup kRefreshOrder[] = {EntryGroup::Decimal, EntryGroup::DegreeMinute,
                                        EntryGroup::Locator, EntryGroup::GaussKrueger,
                                        EntryGroup::Utm};

}  // namespace

CoordinateFields::CoordinateFields(app::AppState& state, std::array<StationPanel*, 2> panel,
                                   DegreeOptions options, ResultBlock& result, QObject* parent)
    : QObject(parent), state_(state), panel_(panel), options_(options), result_(result)
{
    for (StationPanel* const p : panel_) {
        Connect(*p);
    }
    for (QRadioButton* const option : options_) {
        connect(option, &QRadioButton::clicked, this, &CoordinateFields::Option2Clicked);
    }
}

void CoordinateFields::Connect(StationPanel& panel)
{
    for (const auto& form : kForms) {
        for (std::size_t i = form.firstField; i <= form.lastField; ++i) {
            EntryField* const field = panel.Text[i];
            connect(field, &EntryField::Focused, this,
                    [this, group = form.group] { state_.entry.activeGroup = group; });
            // textChanged, not textEdited: setting a station from elsewhere relies on it.
            connect(field, &EntryField::textChanged, this,
                    [this, &panel, field, group = form.group] { Changed(panel, field, group); });
        }
    }
}

void CoordinateFields::Changed(StationPanel& panel, const EntryField* field, EntryGroup group)
{
    if (state_.entry.activeGroup == group) {
        ReadForm(state_, panel, group, field);
        ShowOtherForms(panel);
        Entfernung();
    }
}

void CoordinateFields::ShowOtherForms(const StationPanel& panel)
{
    for (const EntryGroup form : kRefreshOrder) {
        if (form != state_.entry.activeGroup) {
            ShowForm(state_, panel, form);
        }
    }
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
    StationPanel& panel = *panel_[static_cast<std::size_t>(station)];
    if (!IsFinite(position)) {
        state_.entry.activeGroup = EntryGroup::None;  // an emptied field must not be read as 0
        state_.shown.position[static_cast<std::size_t>(station)] = position;
        ShowOtherForms(panel);
        state_.entry.activeGroup = EntryGroup::Decimal;
        Entfernung();
        return;
    }
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
    write(panel.Text[2], position.longitude);
    write(panel.Text[3], position.latitude);
}

void CoordinateFields::Set_GMS_String()
{
    const geo::DegreeMinuteMode mode = state_.configuration.degreeFormat;
    options_[mode == geo::DegreeMinuteMode::Seconds ? 1 : 0]->setChecked(true);
    for (StationPanel* const panel : panel_) {
        panel->ShowUnits(mode);
        ShowForm(state_, *panel, EntryGroup::DegreeMinute);
    }
}

void CoordinateFields::TakeConfiguration()
{
    state_.entry.activeGroup = EntryGroup::Decimal;
    for (const EntryGroup form :
         {EntryGroup::DegreeMinute, EntryGroup::GaussKrueger, EntryGroup::Utm}) {
        for (const StationPanel* const panel : panel_) {
            ShowForm(state_, *panel, form);
        }
    }
    Entfernung();
}

void CoordinateFields::Option2Clicked()
{
    state_.entry.activeGroup = EntryGroup::None;
    state_.configuration.degreeFormat = options_[0]->isChecked() ? geo::DegreeMinuteMode::Hundredths
                                                                 : geo::DegreeMinuteMode::Seconds;
    Set_GMS_String();
}

}  // namespace ui
