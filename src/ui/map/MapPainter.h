// Draws the whole surface of the map window.

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <QColor>
#include <QImage>

#include "app/AppState.h"
#include "app/MainWindowPort.h"
#include "plot/MapView.h"
#include "ui/map/MapImage.h"
#include "ui/map/MarkerLayer.h"
#include "ui/map/PolarPicture.h"
#include "ui/map/SurfacePlot.h"

namespace ui {

// Symbol and label of a marker.
inline constexpr QColor kMapInk{0xCC, 0xCC, 0xCC};
inline constexpr QColor kPolarInk{0xEE, 0xEE, 0xEE};

// What a stored label choice counts as: one that does not exist as the callsign.
stations::LabelChoice CountedLabelChoice(stations::LabelChoice stored);

// Whom a marker stands for.
struct MarkerSource {
    enum class Kind : std::uint8_t { Record, Station, Reference };
    Kind kind = Kind::Record;
    std::uint32_t index = 0;  // of the record, the station or the reference point
};

class MapPainter {
public:
    MapPainter(const app::AppState& state, const MapImage& image,
               const app::MainWindowPort& mainWindow);

    // Draws everything anew: ground, polar scale, marked and unmarked stations in the order of the
    // database, Station 1 and 2, reference points, grid, route. `frame` is a 32-bit picture without
    // alpha with `scale` pixels per surface unit, `plate` the colour under markers and labels.
    void Redraw(QImage& frame, const plot::MapView& view, qreal scale, QColor plate);

    // Whose marker is the topmost at a point of the frame drawn last.
    std::optional<MarkerSource> MarkerAt(plot::SurfacePoint point) const;

    // The markers of the frame drawn last, in the order of drawing.
    std::span<const Marker> Markers() const { return markers_; }
    std::string_view LabelOf(const Marker& marker) const { return layer_.Text(marker.label); }

private:
    void DrawGround(QImage& frame, const plot::MapView& view);
    void DrawLines(QImage& frame, const plot::MapView& view) const;
    void CollectMarkers(const plot::MapView& view);
    void CollectStations(const plot::MapView& view);
    void UpdateLabels();

    // Adds the marker unless it stands too far outside.
    void AddMarker(const plot::MapView& view, map::Pixel plotted, plot::LabelId label,
                   MarkerSource source);

    const app::AppState& state_;
    const MapImage& image_;
    const app::MainWindowPort& mainWindow_;

    SurfacePlot plot_;
    PolarPicture polar_;
    MarkerLayer layer_;
    std::vector<plot::LabelId> recordLabels_;
    std::vector<Marker> markers_;
    std::vector<MarkerSource> sources_;  // of markers_
    std::optional<MarkerPainter> marker_;
};

}  // namespace ui
