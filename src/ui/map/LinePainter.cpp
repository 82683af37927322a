#include "ui/map/LinePainter.h"

namespace ui {

LinePainter::LinePainter(QImage& picture, plot::SurfaceSize surface, qreal scale)
    : painter_(&picture), surface_(surface)
{
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.scale(scale, scale);
    constexpr double kMiddle = 0.5;  // of a unit
    painter_.translate(kMiddle, kMiddle);
    painter_.setPen(QPen(kLineColour, 1.0));
}

void LinePainter::Draw(const plot::Line& line)
{
    if (const std::optional<plot::Line> cut = plot::ClipLine(line, surface_)) {
        painter_.drawLine(QPointF(cut->from.x, cut->from.y), QPointF(cut->to.x, cut->to.y));
    }
}

void LinePainter::DrawCircle(plot::SurfacePoint centre, int radius)
{
    painter_.drawEllipse(QPointF(centre.x, centre.y), radius, radius);
}

}  // namespace ui
