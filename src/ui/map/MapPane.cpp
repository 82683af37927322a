#include "ui/map/MapPane.h"

#include <algorithm>
#include <cstdlib>

#include <QPushButton>
#include <QScrollBar>

#include "plot/ViewLayout.h"
#include "plot/ZoomLevels.h"
#include "ui/Controls.h"
#include "ui/FileNameText.h"
#include "ui/map/MapHint.h"
#include "ui/map/MapProperties.h"
#include "ui/map/PropertiesList.h"

namespace ui {

using namespace Qt::StringLiterals;

MapPane::MapPane(app::AppState& state, const MapImage& image, const app::MainWindowPort& mainWindow,
                 plot::MapView& view, QWidget* parent)
    : QWidget(parent), state_(state), image_(image), view_(view), painter_(state, image, mainWindow)
{
    Command2 =
        NewButton(u"Command2"_s, u"OUT"_s, u"Ansicht verkleinern (Taste −)"_s, &MapPane::ZoomOut);
    Command1 =
        NewButton(u"Command1"_s, u"IN"_s, u"Ansicht vergrößern (Taste +)"_s, &MapPane::ZoomIn);
    HScroll1 = NewBar(Qt::Horizontal, u"HScroll1"_s, u"Bildausschnitt waagerecht"_s);
    VScroll1 = NewBar(Qt::Vertical, u"VScroll1"_s, u"Bildausschnitt senkrecht"_s);

    const auto draw = [this](QImage& frame, qreal scale) {
        painter_.Redraw(frame, view_, scale,
                        palette().color(QPalette::Active, QPalette::Highlight));
    };
    const auto hint = [this](plot::SurfacePoint point) {
        return HintAt(state_, painter_, view_, point);
    };
    Picture1 = Named(new MapSurface(draw, hint, this), u"Picture1"_s);
    Picture1->setAccessibleName(u"Kartenfläche"_s);
    Picture1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Picture1, &MapSurface::Turned, this, &MapPane::Turn);

    List1 = Named(new PropertiesList(this), u"List1"_s);  // made last: it unfolds over the surface
    List1->setAccessibleName(u"Eigenschaften"_s);
    List1->setToolTip(u"Eigenschaften"_s);
    connect(List1, &PropertiesList::Clicked, this, &MapPane::ShowProperties);
    connect(List1, &PropertiesList::FoldChanged, this, &MapPane::Layout);
}

QPushButton* MapPane::NewButton(const QString& name, const QString& caption, const QString& toolTip,
                                void (MapPane::*clicked)())
{
    auto* const button = Named(new QPushButton(caption, this), name);
    button->setToolTip(toolTip);
    connect(button, &QPushButton::clicked, this, clicked);
    return button;
}

QScrollBar* MapPane::NewBar(Qt::Orientation orientation, const QString& name, const QString& spoken)
{
    auto* const bar = Named(new QScrollBar(orientation, this), name);
    bar->setAccessibleName(spoken);
    connect(bar, &QScrollBar::valueChanged, this, &MapPane::ShowClip);
    return bar;
}

void MapPane::SetImageMode(bool on)
{
    Command1->setVisible(!on);
    Command2->setVisible(!on);
    turned_ = {};
}

void MapPane::resizeEvent(QResizeEvent* /*event*/)
{
    Layout();
    Redraw();
}

void MapPane::Layout()
{
    const plot::SurfaceSize inner = {.width = width(), .height = height()};
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

void MapPane::LayoutStrip(int left)
{
    constexpr int kGap = 6;  // around the controls
    constexpr int kButtonHeight = 28;
    const int x = left + kGap;
    const int width = plot::kRightStrip - 2 * kGap;
    Command2->setGeometry(x, kGap, width, kButtonHeight);
    Command1->setGeometry(x, 2 * kGap + kButtonHeight, width, kButtonHeight);
    const int top = 3 * (kGap + kButtonHeight);
    List1->setGeometry(
        List1->Place(QRect(x, top, width, std::max(kButtonHeight, height() - top - kGap))));
}

void MapPane::ShowClip()
{
    view_.clipOrigin = {.x = HScroll1->value(), .y = VScroll1->value()};
    emit ClipMoved();
    Redraw();
}

void MapPane::ZoomIn()
{
    state_.configuration.zoomLevel = plot::ZoomedIn(state_.configuration.zoomLevel);
    Redraw();
}

void MapPane::ZoomOut()
{
    state_.configuration.zoomLevel = plot::ZoomedOut(state_.configuration.zoomLevel);
    Redraw();
}

void MapPane::Scroll(int dx, int dy) const
{
    HScroll1->setValue(HScroll1->value() + dx);
    VScroll1->setValue(VScroll1->value() + dy);
}

void MapPane::ScrollTo(plot::SurfacePoint clipOrigin) const
{
    HScroll1->setValue(clipOrigin.x);
    VScroll1->setValue(clipOrigin.y);
}

// What a wheel or a touchpad turns in small steps is summed up until it is worth a step.
void MapPane::Turn(QPoint eighths)
{
    constexpr int kNotch = 120;  // eighths of a degree in one notch of the wheel
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

void MapPane::ShowProperties()
{
    const QString imageName = Shown(state_.map.imageName);
    List1->Unfold(
        PropertyLines(state_.map, image_.Size(), imageName.toStdString(), state_.numberFormat));
}

}  // namespace ui
