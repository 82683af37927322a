// Thin lines of the map window: scale, grid and route.

#pragma once

#include <QImage>
#include <QPainter>

#include "plot/LineClip.h"
#include "plot/PlotPosition.h"
#include "plot/ViewLayout.h"

namespace ui {

// Scale lines, rings, grid lines and route lines.
inline constexpr QColor kLineColour{0x00, 0x00, 0x45};

// Draws smoothed lines one surface unit wide. A line from one whole unit to another runs through
// the middles of their pixels, so that upright and level lines are sharp.
class LinePainter {
public:
    LinePainter(QImage& picture, plot::SurfaceSize surface, qreal scale);

    void Draw(const plot::Line& line);
    void DrawCircle(plot::SurfacePoint centre, int radius);

private:
    QPainter painter_;
    plot::SurfaceSize surface_;
};

}  // namespace ui
