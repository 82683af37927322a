// The drawing surface of the map window.

#pragma once

#include <functional>

#include <QImage>
#include <QWidget>

#include "plot/PlotPosition.h"

namespace ui {

// Keeps the frame drawn last and shows it until Redraw asks for a new one, so that covering and
// uncovering the window draws nothing. Positions are in surface units.
class MapSurface : public QWidget {
    Q_OBJECT

public:
    // `draw` fills a 32-bit picture with the given number of pixels per surface unit; `hint` says
    // what stands at a point, or nothing.
    using Draw = std::function<void(QImage& frame, qreal scale)>;
    using Hint = std::function<QString(plot::SurfacePoint point)>;
    MapSurface(Draw draw, Hint hint, QWidget* parent);

    // The next paint event draws everything anew; several calls until then draw once.
    void Redraw();

signals:
    void Pressed(plot::SurfacePoint point);  // any button
    void Clicked();                          // the left button went up again on the surface
    void Turned(QPoint eighths);             // the wheel, in eighths of a degree

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    void DrawIfStale();

    Draw draw_;
    Hint hint_;
    QImage frame_;
    bool stale_ = true;
    bool leftPressed_ = false;
};

}  // namespace ui
