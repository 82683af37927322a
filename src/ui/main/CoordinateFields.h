// The coordinate fields of both stations: one position each, shown in five forms.

#pragma once

#include <array>

#include <QObject>

#include "app/AppState.h"
#include "ui/main/FormHeadings.h"

namespace ui {

class EntryField;
class ResultBlock;
class StationPanel;

// Keeps the five forms of a station's position in step while one of them is edited.
//
// A change is acted upon only in the form being edited, the active entry group: it is read into
// the shared position, then every other form is shown again from there. The form being edited is
// left as typed. Writing a field raises its change event too; the group test is what ends that.
class CoordinateFields : public QObject {
    Q_OBJECT

public:
    CoordinateFields(app::AppState& state, std::array<StationPanel*, 2> panel,
                     DegreeOptions options, ResultBlock& result, QObject* parent = nullptr);

    // Sets a station from elsewhere: start-up, list, mean value, map click. Decimal degrees become
    // the active group; writing the two fields as plain decimal text derives all the other forms.
    // A position that is not finite is kept as it is and leaves every form empty.
    void SetPosition(int station, geo::GeoPosition position);

    // Takes the degree format of the configuration over and shows both stations in it.
    void Set_GMS_String();

    // Shows again what a setting has changed, decimal degrees being the active group.
    void TakeConfiguration();

signals:
    void StationsChanged();  // a position, or how it is shown

private:
    void Connect(StationPanel& panel);
    void Changed(StationPanel& panel, const EntryField* field, app::EntryGroup group);
    // Shows the forms that are not being edited.
    void ShowOtherForms(const StationPanel& panel);
    void Entfernung();  // distance and both directions of the pair
    void Option2Clicked();

    app::AppState& state_;
    std::array<StationPanel*, 2> panel_;
    DegreeOptions options_;
    ResultBlock& result_;
};

}  // namespace ui
