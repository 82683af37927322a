// The map window's menu commands and clicks.

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QPointer>
#include <QScrollBar>

#include "plot/GridNodes.h"
#include "ui/FileNameText.h"
#include "ui/map/Gform.h"
#include "ui/map/MapHint.h"
#include "ui/map/MapProperties.h"
#include "ui/map/MapSurface.h"

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
        HScroll1->setValue(clip->x);
        VScroll1->setValue(clip->y);
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
    Layout();
    HScroll1->setValue(0);
    VScroll1->setValue(0);
    view_.route.Clear();
    Redraw();
}

void Gform::LeaveMap()
{
    SetImageMode(false);
    Layout();
    Redraw();
    // What the window system has waiting, a new size above all, comes before the view is drawn.
    const QPointer<Gform> window(this);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!window.isNull()) {
        Layout();
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

void Gform::ShowProperties()
{
    const QString imageName = Shown(state_.map.imageName);
    List1->clear();
    for (const std::string& line :
         PropertyLines(state_.map, image_.Size(), imageName.toStdString(), state_.numberFormat)) {
        List1->addItem(QString::fromStdString(line));
    }
    propertiesOpen_ = true;
    Layout();
    List1->raise();
    List1->setFocus();
}

void Gform::FoldProperties()
{
    if (propertiesOpen_) {
        propertiesOpen_ = false;
        Layout();
    }
}

}  // namespace ui
