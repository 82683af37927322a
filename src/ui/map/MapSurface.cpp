#include "ui/map/MapSurface.h"

#include <utility>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

namespace ui {

namespace {

plot::SurfacePoint ToSurface(QPoint point)
{
    return {.x = point.x(), .y = point.y()};
}

}  // namespace

MapSurface::MapSurface(Draw draw, Hint hint, QWidget* parent)
    : QWidget(parent), draw_(std::move(draw)), hint_(std::move(hint))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void MapSurface::Redraw()
{
    stale_ = true;
    update();
}

void MapSurface::DrawIfStale()
{
    const qreal scale = devicePixelRatioF();
    const QSize size = (QSizeF(width(), height()) * scale).toSize();
    if (!stale_ && frame_.size() == size && frame_.devicePixelRatio() == scale) {
        return;
    }
    if (frame_.size() != size) {
        frame_ = QImage(size, QImage::Format_RGB32);
    }
    frame_.setDevicePixelRatio(1.0);
    draw_(frame_, scale);
    frame_.setDevicePixelRatio(scale);
    stale_ = false;
}

void MapSurface::paintEvent(QPaintEvent* /*event*/)
{
    DrawIfStale();
    QPainter(this).drawImage(0, 0, frame_);
}

void MapSurface::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        Redraw();
    }
}

void MapSurface::mousePressEvent(QMouseEvent* event)
{
    leftPressed_ = event->button() == Qt::LeftButton;
    emit Pressed(ToSurface(event->position().toPoint()));
}

void MapSurface::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(leftPressed_, false)
        && rect().contains(event->position().toPoint())) {
        emit Clicked();
    }
}

void MapSurface::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    const bool sideways = event->modifiers().testFlag(Qt::ShiftModifier);
    emit Turned(sideways ? QPoint(turned.x() + turned.y(), 0) : turned);
    event->accept();
}

bool MapSurface::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QString text = hint_(ToSurface(help->pos()));
    if (text.isEmpty()) {
        QToolTip::hideText();
    } else {
        // The texts of a station are shown as they are, whatever they contain.
        QToolTip::showText(
            help->globalPos(),
            QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped()), this);
    }
    return true;
}

}  // namespace ui
