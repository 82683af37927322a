// All markers of a frame at once.
//
// A marker whose pixels are all taken by later ones is left out, and the picture of a marker is
// kept from frame to frame and copied. The result is pixel by pixel what DrawMarker, called for
// one marker after the other, gives.

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <QImage>

#include "plot/CoverMask.h"
#include "plot/LabelPool.h"
#include "ui/map/MarkerPainter.h"

namespace ui {

struct Marker {
    plot::SurfacePoint at;
    plot::LabelId label = 0;
};

class MarkerLayer {
public:
    // Number of a label, for Marker; in the code page of the records. Numbers hold until Restart.
    plot::LabelId Number(std::string_view text) { return labels_.Number(text); }
    std::string_view Text(plot::LabelId label) const { return labels_.Text(label); }
    std::size_t LabelCount() const { return labels_.Size(); }

    // Pixels of the pictures kept for later frames.
    std::size_t KeptPixels() const { return keptPixels_; }

    // Forgets all labels.
    void Restart();

    // Draws the markers, the last one on top, into a 32-bit picture without alpha.
    void Paint(QImage& picture, std::span<const Marker> markers, const MarkerPainter& painter);

private:
    struct Picture {
        int textWidth = -1;  // surface units; -1 until measured
        bool staysOnPlate = false;
        bool inUse = false;             // by the frame being painted
        std::vector<QRgb> pixels = {};  // the plate with everything on it; empty until painted
    };

    // The picture being painted.
    struct Target {
        QRgb* pixels;
        std::ptrdiff_t pixelsPerRow;
    };

    void Prepare(const MarkerPainter& painter);
    Picture& Measured(plot::LabelId label);
    void FindVisible(plot::SurfaceSize picture, std::span<const Marker> markers);
    void PaintMissing(std::span<const Marker> markers);
    // Copies the part of a marker's picture that no later marker covers.
    void Copy(const Target& target, const Marker& marker, const plot::PixelBox& part) const;

    plot::LabelPool labels_;
    std::vector<Picture> pictures_;
    std::size_t keptPixels_ = 0;
    std::optional<MarkerPainter> painter_;
    plot::CoverMask mask_;

    // A marker that is not wholly covered.
    struct Visible {
        std::uint32_t index;
        plot::PixelBox part;  // around all of its pixels that are to be seen
    };
    std::vector<Visible> visible_;  // the topmost first
};

}  // namespace ui
