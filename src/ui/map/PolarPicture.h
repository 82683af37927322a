// The polar scale as a picture.

#pragma once

#include <QImage>

#include "base/NumberText.h"
#include "plot/ViewLayout.h"
#include "ui/map/MarkerPainter.h"

namespace ui {

inline constexpr QColor kPolarGround{0xFF, 0xFF, 0xFF};

// Clears the picture and draws radial lines, rings and their labels with `scale` pixels per surface
// unit. `marker` lends its font and colours to the labels.
void DrawPolarScale(QImage& picture, plot::SurfaceSize surface, int zoomLevel, qreal scale,
                    const MarkerPainter& marker, const base::NumberFormat& format);

}  // namespace ui
