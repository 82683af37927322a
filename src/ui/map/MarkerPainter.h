// Station and reference markers: a light square on a plate that extends to the right under its
// label.
//
// Markers stand on whole surface units. On a display of more than one device pixel per unit their
// anchor goes to the nearest device pixel and everything else follows from there, so that equal
// markers look the same wherever they stand and are drawn at the full resolution.

#pragma once

#include <array>
#include <string_view>

#include <QColor>
#include <QFont>
#include <QFontMetricsF>

#include "plot/CoverMask.h"
#include "plot/PlotPosition.h"

class QPainter;

namespace ui {

// A text cell is 13 surface units high; its baseline lies 10 below its top.
QFont LabelFont(qreal scale);
inline constexpr int kLabelBaseline = 10;

class MarkerPainter {
public:
    // `scale` is device pixels per surface unit. Looks at every character once: costs milliseconds.
    MarkerPainter(qreal scale, QColor plate, QColor ink);

    // Texts are in the code page of the records.

    // Width of a text in whole surface units.
    int TextWidth(std::string_view text) const;

    // Device pixels of the plate under a label of the given width.
    plot::PixelBox Plate(plot::SurfacePoint at, int textWidth) const;

    // True when the text surely lies on its plate to the last pixel. Accents on capitals reach
    // above it.
    bool StaysOnPlate(std::string_view text) const;

    // Every pixel that a marker whose text leaves its plate may touch.
    plot::PixelBox Reach(const plot::PixelBox& plate) const;

    // `painter` draws in device pixels, without antialiasing of shapes.
    void DrawMarker(QPainter& painter, plot::SurfacePoint at, std::string_view text) const;

    QColor PlateColour() const { return plate_; }
    QColor Ink() const { return ink_; }

    void SetColours(QColor plate, QColor ink)
    {
        plate_ = plate;
        ink_ = ink;
    }

    qreal Scale() const { return scale_; }

    // True for the same scale and colours: then everything drawn is the same too.
    bool operator==(const MarkerPainter& other) const
    {
        return scale_ == other.scale_ && plate_ == other.plate_ && ink_ == other.ink_;
    }

private:
    // A character that stands for itself wherever it is: the width of a text of such characters is
    // the sum of theirs.
    struct Character {
        bool simple = false;
        bool staysOnPlate = false;
        double advance = 0.0;  // device pixels
    };

    int Device(int units) const;
    void FindOverhang();
    bool AllSimple(std::string_view text) const;

    qreal scale_;
    QColor plate_;
    QColor ink_;
    QFont font_;
    QFontMetricsF metrics_;
    std::array<Character, 256> characters_;
};

}  // namespace ui
