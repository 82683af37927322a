// The polar scale as a picture that is kept from frame to frame.

#pragma once

#include <tuple>

#include <QImage>

#include "base/NumberText.h"
#include "plot/ViewLayout.h"
#include "ui/map/MarkerPainter.h"

namespace ui {

inline constexpr QColor kPolarGround{0xFF, 0xFF, 0xFF};

// Radial lines, rings and their labels, drawn anew only when something about them has changed.
class PolarPicture {
public:
    // Fills the frame. `marker` lends its scale, font and colours to the labels.
    void Draw(QImage& frame, plot::SurfaceSize surface, int zoomLevel, const MarkerPainter& marker,
              const base::NumberFormat& format);

private:
    // Frame, surface, scale, zoom level and colour of the plates that the picture was drawn for.
    std::tuple<QSize, plot::SurfaceSize, qreal, int, QRgb> key_;
    QImage picture_;
};

}  // namespace ui
