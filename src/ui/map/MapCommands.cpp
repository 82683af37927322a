// The map window's menu commands and clicks.

#include <QAction>
#include <QApplication>
#include <QPointer>

#include "plot/GridNodes.h"
#include "ui/map/Gform.h"
#include "ui/map/MapHint.h"
#include "ui/map/MapPane.h"

namespace ui {

using namespace Qt::StringLiterals;

void Gform::Press(plot::SurfacePoint point)
{
    if (!state_.map.mapImage) {
        return;
    }
    if (!isActiveWindow()) {
        activatingPress_.PressedInactive(view_.route.Count());
    } else if (const std::optional<plot::SurfacePoint> clip = activatingPress_.ClipPressed()) {
        pane_->ScrollTo(*clip);
    }
    setWindowTitle(mouse_.Press(point, view_.clipOrigin));
}

void Gform::Click()
{
    if (!state_.map.mapImage) {
        return;
    }
    const ClickResult result = mouse_.Click(view_.route);
    if (result.referenceAdded) {
        SetReferenceMode(true);
    }
    if (result.nextMode) {
        SetClickMode(*result.nextMode);
    }
    if (result.redraw) {
        Redraw();
    }
}

QString Gform::HintAt(plot::SurfacePoint point) const
{
    const std::optional<MarkerSource> marker = painter_.MarkerAt(point);
    if (!marker) {
        return GivesPositionAt(point) ? QString() : u"keine Position"_s;
    }
    const auto station = [this](std::size_t k) {
        return StationHint(state_, state_.shown.record[k], state_.shown.position[k]);
    };
    switch (marker->kind) {
    case MarkerSource::Kind::Station1: return QString::fromStdString(station(0));
    case MarkerSource::Kind::Station2: return QString::fromStdString(station(1));
    case MarkerSource::Kind::Reference:
        if (marker->index < state_.map.references.Points().size()) {
            return QString::fromStdString(ReferenceHint(state_, marker->index));
        }
        break;
    case MarkerSource::Kind::Record:
        if (marker->index < state_.database.Count()) {
            const stations::StationRecord& record = state_.database[marker->index];
            return QString::fromStdString(StationHint(state_, record, record.Position()));
        }
        break;
    }
    return {};
}

bool Gform::GivesPositionAt(plot::SurfacePoint point) const
{
    const map::ReferenceTable& table = state_.map.references;
    return !state_.map.mapImage || !table.ReferenceMode()
           || map::GivesPosition(table, view_.clipOrigin.x + point.x, view_.clipOrigin.y + point.y,
                                 OutputRefinement());
}

map::Refinement Gform::OutputRefinement() const
{
    return state_.configuration.optimisedOutput ? map::Refinement::On : map::Refinement::Off;
}

void Gform::LoadMap()
{
    if (!files_.Load()) {
        return;
    }
    Item("MnuRast")->setChecked(false);
    view_.grid.reset();
    ShowReferenceMode();
    SetImageMode(true);
    pane_->Layout();
    pane_->ScrollTo({});
    view_.route.Clear();
    Redraw();
}

void Gform::LeaveMap()
{
    SetImageMode(false);
    pane_->Layout();
    Redraw();
    // What the window system has waiting, a new size above all, comes before the view is drawn.
    const QPointer<Gform> window(this);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!window.isNull()) {
        pane_->Layout();
        Redraw();
    }
}

void Gform::Toggle(bool stations::Configuration::*shown, bool on)
{
    state_.configuration.*shown = on;
    Redraw();
}

void Gform::ToggleGrid(bool on)
{
    view_.grid.reset();
    if (on) {
        view_.grid = plot::MakeGrid(state_.map.references, image_.Size(), OutputRefinement());
        if (!view_.grid) {
            Item("MnuRast")->setChecked(false);
            dialogs_.Inform(this, {},
                            u"Für diese Karte lässt sich kein Raster zeichnen: Ihre Referenzpunkte "
                            u"ergeben keine brauchbare Ausdehnung."_s);
        }
    }
    Redraw();
}

void Gform::SaveAdjustment()
{
    files_.SaveAdjustment();
}

void Gform::SaveCalibration()
{
    files_.SaveCalibration();
}

void Gform::ReferencesFromBounds()
{
    files_.ReferencesFromBounds();
    SetReferenceMode(true);
    Redraw();
}

void Gform::ClearAllReferences()
{
    state_.map.references.ClearAllReferences();
    SetReferenceMode(false);
    Redraw();
}

void Gform::ClearLastReference()
{
    state_.map.references.ClearLastReference();
    Redraw();
}

void Gform::ContinueRoute()
{
    SetClickMode(view_.route.Empty() ? app::ClickMode::RouteStart : app::ClickMode::RouteContinue);
}

}  // namespace ui
