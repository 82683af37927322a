#include "ui/map/Gform.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QWindow>

#include "plot/ViewLayout.h"
#include "plot/ZoomLevels.h"
#include "ui/Controls.h"
#include "ui/map/MapSurface.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kStartSize{900, 680};
constexpr int kGap = 6;  // around the controls in the right strip
constexpr int kButtonHeight = 28;
constexpr int kScrollStep = 20;  // surface units
constexpr int kNotch = 120;      // eighths of a degree in one notch of the wheel

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
    AddControls();
    AddMenus();
    resize(kStartSize);

    SetLabelChoice(state_.configuration.labelChoice);
    ShowSwitches();
    ShowReferenceMode();
    SetClickMode(app::ClickMode::Nop);
    SetImageMode(state_.map.mapImage && !image_.Empty());
    Layout();
    Redraw();
    Picture1->setFocus();

    // Another window in between: then coming back is an activation, dialogs or not.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (window != nullptr && window != windowHandle() && !dialogs_.AnyOpen()) {
            leftForOwnDialog_ = false;
        }
    });
}

void Gform::AddControls()
{
    auto* const contents = new QWidget(this);
    setCentralWidget(contents);

    const auto button = [contents](const QString& name, const QString& caption) {
        return Named(new QPushButton(caption, contents), name);
    };
    Command2 = button(u"Command2"_s, u"OUT"_s);
    Command2->setToolTip(u"Ansicht verkleinern (Taste −)"_s);
    connect(Command2, &QPushButton::clicked, this, [this] { ZoomOut(); });
    Command1 = button(u"Command1"_s, u"IN"_s);
    Command1->setToolTip(u"Ansicht vergrößern (Taste +)"_s);
    connect(Command1, &QPushButton::clicked, this, [this] { ZoomIn(); });

    const auto bar = [this, contents](Qt::Orientation orientation, const QString& name,
                                      const QString& spoken) {
        auto* const scrollBar = Named(new QScrollBar(orientation, contents), name);
        scrollBar->setAccessibleName(spoken);
        connect(scrollBar, &QScrollBar::valueChanged, this, [this] { ShowClip(); });
        return scrollBar;
    };
    HScroll1 = bar(Qt::Horizontal, u"HScroll1"_s, u"Bildausschnitt waagerecht"_s);
    VScroll1 = bar(Qt::Vertical, u"VScroll1"_s, u"Bildausschnitt senkrecht"_s);

    Picture1 =
        Named(new MapSurface(
                  [this](QImage& frame, qreal scale) {
                      painter_.Redraw(frame, view_, scale,
                                      palette().color(QPalette::Active, QPalette::Highlight));
                  },
                  [this](plot::SurfacePoint point) { return HintAt(point); }, contents),
              u"Picture1"_s);
    Picture1->setAccessibleName(u"Kartenfläche"_s);
    Picture1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Picture1, &MapSurface::Pressed, this, &Gform::Press);
    connect(Picture1, &MapSurface::Clicked, this, &Gform::Click);
    connect(Picture1, &MapSurface::Turned, this, &Gform::Turn);
    connect(Picture1, &MapSurface::customContextMenuRequested, this, &Gform::OfferClickModes);

    List1 = Named(new QListWidget(contents), u"List1"_s);  // made last: it unfolds over the surface
    List1->setAccessibleName(u"Eigenschaften"_s);
    List1->setToolTip(u"Eigenschaften"_s);
    List1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (QObject* const watched : {static_cast<QObject*>(contents), static_cast<QObject*>(List1),
                                   static_cast<QObject*>(List1->viewport())}) {
        watched->installEventFilter(this);
    }
}

void Gform::Redraw() const
{
    Picture1->Redraw();
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

bool Gform::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == centralWidget() && event->type() == QEvent::Resize) {
        Layout();
        Redraw();
    } else if (watched == List1 && event->type() == QEvent::FocusOut) {
        FoldProperties();
    } else if (watched == List1->viewport() && event->type() == QEvent::MouseButtonRelease) {
        ShowProperties();
    }
    return QMainWindow::eventFilter(watched, event);
}

void Gform::Activate()
{
    const plot::SurfacePoint shown = view_.clipOrigin;
    const std::optional<std::size_t> pressed = activatingPress_.PointsBeforePress();
    if (state_.map.mapImage && !pressed) {
        HScroll1->setValue(0);
        VScroll1->setValue(0);
    }
    mainWindow_.S1S2_Update();
    Layout();
    view_.route.RemoveFirst(pressed.value_or(view_.route.Count()));
    Redraw();
    if (!pressed) {
        activatingPress_.Activated(shown);
    }
}

void Gform::Layout()
{
    const plot::SurfaceSize inner = {.width = centralWidget()->width(),
                                     .height = centralWidget()->height()};
    const map::ImageSize image = image_.Size();
    const plot::ViewLayout layout =
        state_.map.mapImage ? plot::ImageLayout(inner, image) : plot::PolarLayout(inner);
    const plot::SurfaceSize& surface = view_.surface = layout.surface;
    Picture1->setGeometry(0, 0, surface.width, surface.height);

    const auto place = [](QScrollBar* bar, bool needed, int hidden, int page) {
        bar->setVisible(needed);
        bar->setPageStep(page);
        bar->setSingleStep(std::min(kScrollStep, page));
        bar->setRange(0, needed ? std::max(0, hidden) : 0);
    };
    HScroll1->setGeometry(0, surface.height, surface.width, plot::kBarThickness);
    VScroll1->setGeometry(surface.width, 0, plot::kBarThickness, surface.height);
    place(HScroll1, layout.horizontalBar, image.width - surface.width, surface.width);
    place(VScroll1, layout.verticalBar, image.height - surface.height, surface.height);
    view_.clipOrigin = {.x = HScroll1->value(), .y = VScroll1->value()};
    LayoutStrip(inner.width - plot::kRightStrip);
}

void Gform::LayoutStrip(int left)
{
    const int height = centralWidget()->height();
    const int x = left + kGap;
    const int width = plot::kRightStrip - 2 * kGap;
    Command2->setGeometry(x, kGap, width, kButtonHeight);
    Command1->setGeometry(x, 2 * kGap + kButtonHeight, width, kButtonHeight);
    const int top = 3 * (kGap + kButtonHeight);
    QRect area(x, top, width, std::max(kButtonHeight, height - top - kGap));
    if (propertiesOpen_) {
        const int frame = 2 * List1->frameWidth() + List1->verticalScrollBar()->sizeHint().width();
        area.setLeft(std::max(kGap, area.right() - List1->sizeHintForColumn(0) - frame));
        const int lines = List1->count() * List1->sizeHintForRow(0);
        area.setHeight(std::min(area.height(), lines + 2 * List1->frameWidth()));
    }
    List1->setGeometry(area);
}

void Gform::ShowClip()
{
    view_.clipOrigin = {.x = HScroll1->value(), .y = VScroll1->value()};
    activatingPress_.ForgetClip();
    Redraw();
}

void Gform::ZoomIn()
{
    state_.configuration.zoomLevel = plot::ZoomedIn(state_.configuration.zoomLevel);
    Redraw();
}

void Gform::ZoomOut()
{
    state_.configuration.zoomLevel = plot::ZoomedOut(state_.configuration.zoomLevel);
    Redraw();
}

void Gform::Scroll(int dx, int dy) const
{
    HScroll1->setValue(HScroll1->value() + dx);
    VScroll1->setValue(VScroll1->value() + dy);
}

// What a wheel or a touchpad turns in small steps is summed up until it is worth a step.
void Gform::Turn(QPoint eighths)
{
    turned_ += eighths;
    if (!state_.map.mapImage) {
        const int notches = turned_.y() / kNotch;
        turned_ = {0, turned_.y() - notches * kNotch};
        for (int i = 0; i < std::abs(notches); ++i) {
            notches > 0 ? ZoomIn() : ZoomOut();
        }
        return;
    }
    constexpr int kEighthsPerUnit = kNotch / (3 * kScrollStep);
    const QPoint units(turned_.x() / kEighthsPerUnit, turned_.y() / kEighthsPerUnit);
    turned_ -= units * kEighthsPerUnit;
    Scroll(-units.x(), -units.y());
}

void Gform::keyPressEvent(QKeyEvent* event)
{
    const bool map = state_.map.mapImage;
    switch (event->key()) {
    case Qt::Key_Plus: map ? event->ignore() : ZoomIn(); return;
    case Qt::Key_Minus: map ? event->ignore() : ZoomOut(); return;
    case Qt::Key_Left: Scroll(-kScrollStep, 0); return;
    case Qt::Key_Right: Scroll(kScrollStep, 0); return;
    case Qt::Key_Up: Scroll(0, -kScrollStep); return;
    case Qt::Key_Down: Scroll(0, kScrollStep); return;
    case Qt::Key_Escape:
        if (propertiesOpen_) {
            Picture1->setFocus();
            return;
        }
        break;
    default: break;
    }
    QMainWindow::keyPressEvent(event);
}

}  // namespace ui
