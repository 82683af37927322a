#include "ui/map/Gform.h"

#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

#include "ui/map/MapPane.h"
#include "ui/map/PropertiesList.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kStartSize{900, 680};

}  // namespace

Gform::Gform(app::AppState& state, MapImage& image, app::MainWindowPort& mainWindow,
             UserDialogs& dialogs)
    : state_(state), image_(image), mainWindow_(mainWindow), dialogs_(dialogs),
      painter_(state, image, mainWindow), mouse_(state, image, mainWindow, dialogs_, this),
      files_(state, image, dialogs_, this)
{
    setObjectName(u"Gform"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"Form1"_s);
    pane_ = new MapPane(
        state_, image_, painter_, view_, [this](plot::SurfacePoint point) { return HintAt(point); },
        this);
    setCentralWidget(pane_);
    Command1 = pane_->Command1;
    Command2 = pane_->Command2;
    List1 = pane_->List1;
    HScroll1 = pane_->HScroll1;
    VScroll1 = pane_->VScroll1;
    Picture1 = pane_->Picture1;
    connect(Picture1, &MapSurface::Pressed, this, &Gform::Press);
    connect(Picture1, &MapSurface::Clicked, this, &Gform::Click);
    connect(Picture1, &MapSurface::customContextMenuRequested, this, &Gform::OfferClickModes);
    connect(pane_, &MapPane::ClipMoved, this, [this] { activatingPress_.ForgetClip(); });
    AddMenus();
    resize(kStartSize);

    SetLabelChoice(state_.configuration.labelChoice);
    ShowSwitches();
    ShowReferenceMode();
    SetClickMode(app::ClickMode::Nop);
    SetImageMode(state_.map.mapImage && !image_.Empty());
    pane_->Layout();
    Redraw();
    Picture1->setFocus();

    // Another window in between: then coming back is an activation, dialogs or not.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (window != nullptr && window != windowHandle() && !dialogs_.AnyOpen()) {
            leftForOwnDialog_ = false;
        }
    });
}

void Gform::Redraw() const
{
    pane_->Redraw();
}

void Gform::AutoRedraw()
{
    if (state_.configuration.autoRedraw) {
        mainWindow_.S1S2_Update();
        Redraw();
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
        pane_->ScrollTo({});
    }
    mainWindow_.S1S2_Update();
    pane_->Layout();
    view_.route.RemoveFirst(pressed.value_or(view_.route.Count()));
    Redraw();
    if (!pressed) {
        activatingPress_.Activated(shown);
    }
}

void Gform::keyPressEvent(QKeyEvent* event)
{
    constexpr int kScrollStep = MapPane::kScrollStep;
    const bool map = state_.map.mapImage;
    switch (event->key()) {
    case Qt::Key_Plus: map ? event->ignore() : pane_->ZoomIn(); return;
    case Qt::Key_Minus: map ? event->ignore() : pane_->ZoomOut(); return;
    case Qt::Key_Left: pane_->Scroll(-kScrollStep, 0); return;
    case Qt::Key_Right: pane_->Scroll(kScrollStep, 0); return;
    case Qt::Key_Up: pane_->Scroll(0, -kScrollStep); return;
    case Qt::Key_Down: pane_->Scroll(0, kScrollStep); return;
    case Qt::Key_Escape:
        if (pane_->List1->Unfolded()) {
            Picture1->setFocus();
            return;
        }
        break;
    default: break;
    }
    QMainWindow::keyPressEvent(event);
}

}  // namespace ui
