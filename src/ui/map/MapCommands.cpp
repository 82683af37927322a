#include "ui/map/MapCommands.h"

#include <QApplication>
#include <QPointer>

#include "plot/GridNodes.h"
#include "ui/UserDialogs.h"
#include "ui/map/MapPane.h"

namespace ui {

using namespace Qt::StringLiterals;

MapCommands::MapCommands(app::AppState& state, MapImage& image, UserDialogs& dialogs,
                         plot::MapView& view, MapPane& pane, QMainWindow& window,
                         std::function<void()> before)
    : state_(state), image_(image), dialogs_(dialogs), view_(view), pane_(pane), window_(window),
      files_(state, image, dialogs, &window), menus_(window, state, view, *this, std::move(before))
{
}

void MapCommands::Show() const
{
    menus_.Show();
    const bool acts = state_.map.mapImage && state_.map.clickMode != app::ClickMode::Nop;
    pane_.Picture1->setCursor(acts ? Qt::CrossCursor : Qt::ArrowCursor);
    pane_.Redraw();
}

void MapCommands::SetImageMode(bool on)
{
    state_.map.mapImage = on;
    pane_.SetImageMode(on);
    Show();
    pane_.Layout();
}

void MapCommands::LoadMap()
{
    if (files_.Load()) {
        view_.grid.reset();
        SetImageMode(true);
        pane_.ScrollTo({});
        view_.route.Clear();
    }
}

void MapCommands::LeaveMap()
{
    SetImageMode(false);
    // What the window system has waiting, a new size above all, comes before the view is drawn.
    const QPointer<MapPane> pane(&pane_);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!pane.isNull()) {
        pane->Layout();
        pane->Redraw();
    }
}

void MapCommands::ToggleGrid(bool on)
{
    view_.grid.reset();
    if (on) {
        const auto refinement =
            state_.configuration.optimisedOutput ? map::Refinement::On : map::Refinement::Off;
        view_.grid = plot::MakeGrid(state_.map.references, image_.Size(), refinement);
        if (!view_.grid) {
            menus_.Show();
            dialogs_.Inform(&window_, {},
                            u"Für diese Karte lässt sich kein Raster zeichnen: Ihre Referenzpunkte "
                            u"ergeben keine brauchbare Ausdehnung."_s);
        }
    }
    Show();
}

void MapCommands::ShowProperties()
{
    pane_.ShowProperties();
}

void MapCommands::ReferencesFromBounds()
{
    constexpr std::int16_t kCorners = 4;
    state_.map.references.Replace(map::ReferencesFromInf(state_.map.bounds, image_.Size()),
                                  kCorners);
    view_.grid.reset();
    Show();
}

void MapCommands::ClearAllReferences()
{
    state_.map.references.ClearAllReferences();
    Show();
}

void MapCommands::ClearLastReference()
{
    state_.map.references.ClearLastReference();
    Show();
}

void MapCommands::ContinueRoute()
{
    Set(state_.map.clickMode,
        view_.route.Empty() ? app::ClickMode::RouteStart : app::ClickMode::RouteContinue);
}

}  // namespace ui
