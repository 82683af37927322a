#include "ui/map/Gform.h"

#include <optional>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QWindow>

#include "ui/map/MapPane.h"
#include "ui/map/PropertiesList.h"

namespace ui {

using namespace Qt::StringLiterals;

Gform::Gform(app::AppState& state, MapImage& image, app::MainWindowPort& mainWindow,
             UserDialogs& dialogs)
    : pane(new MapPane(state, image, mainWindow, view_, this)), state_(state),
      mainWindow_(mainWindow), dialogs_(dialogs),
      commands_(state, image, dialogs_, view_, *pane, *this,
                [this] { activatingPress_.ForgetClip(); }),
      mouse_(state, image, mainWindow, dialogs_, this)
{
    setObjectName(u"Gform"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"Form1"_s);
    setCentralWidget(pane);
    connect(pane->Picture1, &MapSurface::Pressed, this, &Gform::Press);
    connect(pane->Picture1, &MapSurface::Clicked, this, &Gform::Click);
    connect(pane->Picture1, &MapSurface::customContextMenuRequested, this, &Gform::OfferClickModes);
    connect(pane, &MapPane::ClipMoved, this, [this] { activatingPress_.ForgetClip(); });
    constexpr QSize kStartSize{900, 680};
    resize(kStartSize);

    state_.map.clickMode = app::ClickMode::Nop;
    commands_.SetImageMode(state_.map.mapImage && !image.Empty());
    pane->Picture1->setFocus();

    // Another window in between: then coming back is an activation, dialogs or not.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (window != nullptr && window != windowHandle() && !dialogs_.AnyOpen()) {
            leftForOwnDialog_ = false;
        }
    });
}

void Gform::AutoRedraw()
{
    if (state_.configuration.autoRedraw) {
        mainWindow_.S1S2_Update();
        pane->Redraw();
    }
}

bool Gform::event(QEvent* event)
{
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::WindowDeactivate) {
        leftForOwnDialog_ = dialogs_.AnyOpen();
    } else if (event->type() == QEvent::WindowActivate
               && !std::exchange(leftForOwnDialog_, false)) {
        Activate();
    }
    return handled;
}

void Gform::Activate()
{
    const plot::SurfacePoint shown = view_.clipOrigin;
    const std::optional<std::size_t> pressed = activatingPress_.PointsBeforePress();
    if (state_.map.mapImage && !pressed) {
        pane->ScrollTo({});
    }
    mainWindow_.S1S2_Update();
    pane->Layout();
    view_.route.RemoveFirst(pressed.value_or(view_.route.Count()));
    pane->Redraw();
    if (!pressed) {
        activatingPress_.Activated(shown);
    }
}

void Gform::keyPressEvent(QKeyEvent* event)
{
    constexpr int kScrollStep = MapPane::kScrollStep;
    const bool map = state_.map.mapImage;
    switch (event->key()) {
    case Qt::Key_Plus: map ? event->ignore() : pane->ZoomIn(); return;
    case Qt::Key_Minus: map ? event->ignore() : pane->ZoomOut(); return;
    case Qt::Key_Left: pane->Scroll(-kScrollStep, 0); return;
    case Qt::Key_Right: pane->Scroll(kScrollStep, 0); return;
    case Qt::Key_Up: pane->Scroll(0, -kScrollStep); return;
    case Qt::Key_Down: pane->Scroll(0, kScrollStep); return;
    case Qt::Key_Escape:
        if (pane->List1->Unfolded()) {
            pane->Picture1->setFocus();
            return;
        }
        break;
    default: break;
    }
    QMainWindow::keyPressEvent(event);
}

void Gform::OfferClickModes(QPoint point)
{
    if (state_.map.mapImage) {
        findChild<QMenu*>(u"MnuClk"_s)->popup(pane->Picture1->mapToGlobal(point));
    }
}

void Gform::Press(plot::SurfacePoint point)
{
    if (!state_.map.mapImage) {
        return;
    }
    if (!isActiveWindow()) {
        activatingPress_.PressedInactive(view_.route.Count());
    } else if (const std::optional<plot::SurfacePoint> clip = activatingPress_.ClipPressed()) {
        pane->ScrollTo(*clip);
    }
    setWindowTitle(mouse_.Press(point, view_.clipOrigin));
}

void Gform::Click()
{
    if (state_.map.mapImage && mouse_.Click(view_)) {
        commands_.Show();
    }
}

}  // namespace ui
