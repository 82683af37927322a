#include "ui/map/PolarPicture.h"

#include <cstring>

#include <QPainter>

#include "base/Rounding.h"
#include "plot/PolarScale.h"
#include "ui/map/LinePainter.h"

namespace ui {

namespace {

// The plate from the ring's topmost point, in surface units; its lower right corner belongs to it.
constexpr int kPlateMargin = 2;
constexpr int kPlateTop = 4;
constexpr int kPlateBottom = 12;
constexpr int kTextTop = 2;

void DrawLabel(QPainter& painter, plot::SurfacePoint top, const std::string& label, qreal scale,
               const MarkerPainter& marker)
{
    const int width = marker.TextWidth(label);
    const double left = top.x - width / 2.0;
    const auto whole = [scale](double units) {
        return base::Saturate<int>(base::RoundHalfEven(base::RoundHalfEven(units) * scale));
    };
    const int plateLeft = whole(left - kPlateMargin);
    const int plateRight = whole(base::RoundHalfEven(top.x + width / 2.0 + kPlateMargin) + 1.0);
    const int plateTop = whole(top.y + kPlateTop);
    const int plateBottom = whole(top.y + kPlateBottom + 1.0);
    painter.fillRect(plateLeft, plateTop, plateRight - plateLeft, plateBottom - plateTop,
                     marker.PlateColour());
    painter.setPen(marker.Ink());
    painter.drawText(whole(left), whole(top.y + kTextTop + kLabelBaseline),
                     QString::fromStdString(label));
}

void DrawScale(QImage& picture, plot::SurfaceSize surface, int zoomLevel,
               const MarkerPainter& marker, const base::NumberFormat& format)
{
    const qreal scale = marker.Scale();
    const plot::PolarScale polar = plot::MakePolarScale(surface, zoomLevel, format);
    picture.fill(kPolarGround);
    {
        LinePainter lines(picture, surface, scale);
        for (const plot::Line& radial : polar.radials) {
            lines.Draw(radial);
        }
        for (const plot::RangeRing& ring : polar.rings) {
            lines.DrawCircle(polar.centre, ring.radius);
        }
    }
    QPainter painter(&picture);
    painter.setFont(LabelFont(scale));
    for (const plot::RangeRing& ring : polar.rings) {
        DrawLabel(painter, {.x = polar.centre.x, .y = polar.centre.y - ring.radius}, ring.label,
                  scale, marker);
    }
}

}  // namespace

void PolarPicture::Draw(QImage& frame, plot::SurfaceSize surface, int zoomLevel,
                        const MarkerPainter& marker, const base::NumberFormat& format)
{
    const std::tuple key(frame.size(), surface, marker.Scale(), zoomLevel,
                         marker.PlateColour().rgb());
    if (key_ != key) {
        picture_ = QImage(frame.size(), frame.format());
        DrawScale(picture_, surface, zoomLevel, marker, format);
        key_ = key;
    }
    // Into the bits that are there: a frame of the same size need not be made anew.
    std::memcpy(frame.bits(), picture_.constBits(),
                static_cast<std::size_t>(picture_.sizeInBytes()));
}

}  // namespace ui
