#include "ui/map/MapPainter.h"

#include <array>
#include <cstring>
#include <string>

#include <QPainter>

#include "base/Rounding.h"
#include "map/Georeference.h"
#include "plot/ZoomLevels.h"
#include "ui/map/LinePainter.h"
#include "ui/map/PolarPicture.h"

namespace ui {

namespace {

// Labels of earlier frames are forgotten beyond this many for each record.
constexpr std::size_t kLabelsPerRecord = 3;
constexpr std::size_t kFewLabels = 10'000;

constexpr std::array kLabelFields = {stations::Field::Callsign, stations::Field::Name,
                                     stations::Field::Place, stations::Field::Frequency,
                                     stations::Field::Remark};

// The field of a record that labels its marker.
stations::Field LabelField(stations::LabelChoice labelChoice)
{
    return kLabelFields[static_cast<std::size_t>(CountedLabelChoice(labelChoice))];
}

// Without the bits of a picture of the same size and form having to be made anew.
void CopyPicture(const QImage& from, QImage& to)
{
    std::memcpy(to.bits(), from.constBits(), static_cast<std::size_t>(from.sizeInBytes()));
}

}  // namespace

stations::LabelChoice CountedLabelChoice(stations::LabelChoice stored)
{
    const bool exists = static_cast<std::size_t>(stored) < kLabelFields.size();
    return exists ? stored : stations::LabelChoice::Callsign;
}

MapPainter::MapPainter(const app::AppState& state, const MapImage& image,
                       const app::MainWindowPort& mainWindow)
    : state_(state), image_(image), mainWindow_(mainWindow)
{
}

void MapPainter::Redraw(QImage& frame, const plot::MapView& view, qreal scale, QColor plate)
{
    const QColor ink = state_.map.mapImage ? kMapInk : kPolarInk;
    if (!marker_ || marker_->Scale() != scale) {
        marker_.emplace(scale, plate, ink);
    }
    marker_->SetColours(plate, ink);
    scale_ = scale;
    DrawGround(frame, view, *marker_);
    CollectMarkers(view);
    layer_.Paint(frame, markers_, *marker_);
    DrawLines(frame, view);
}

void MapPainter::DrawGround(QImage& frame, const plot::MapView& view, const MarkerPainter& marker)
{
    if (state_.map.mapImage) {
        const QRect area(view.clipOrigin.x, view.clipOrigin.y, view.surface.width,
                         view.surface.height);
        QPainter painter(&frame);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(scale_, scale_);
        painter.drawImage(0, 0, image_.Clip(area));
        return;
    }
    const ScaleKey key = {.frame = frame.size(),
                          .surface = view.surface,
                          .scale = scale_,
                          .zoomLevel = state_.configuration.zoomLevel,
                          .plate = marker.PlateColour().rgb()};
    if (scaleKey_ != key) {
        scalePicture_ = QImage(frame.size(), frame.format());
        DrawPolarScale(scalePicture_, view.surface, key.zoomLevel, scale_, marker,
                       state_.numberFormat);
        scaleKey_ = key;
    }
    CopyPicture(scalePicture_, frame);
}

plot::ImageModel MapPainter::CurrentModel() const
{
    const map::ReferenceTable& table = state_.map.references;
    plot::ImageModel model{.references = {}, .edges = state_.map.edges, .image = image_.Size()};
    if (table.ReferenceMode()) {
        model.references.emplace(table.Points().begin(), table.Points().end());
    }
    return model;
}

map::Pixel MapPainter::Plot(const plot::MapView& view, geo::GeoPosition position) const
{
    if (!state_.map.mapImage) {
        const plot::ZoomScale scale = plot::ComputeScale(state_.configuration.zoomLevel);
        return plot::PolarOffset(plot::PolarFrom(state_.shown.position[0], position),
                                 plot::PolarUnitsPerKilometre(view.surface, scale.ViewRange()));
    }
    const map::Pixel pixel =
        state_.map.references.ReferenceMode()
            ? map::GeoToPixel(state_.map.references, position)
            : plot::InterpolatedPixel(state_.map.edges, image_.Size(), position);
    return {.x = pixel.x - view.clipOrigin.x, .y = pixel.y - view.clipOrigin.y};
}

void MapPainter::AddMarker(const plot::MapView& view, map::Pixel plotted, plot::LabelId label,
                           MarkerSource source)
{
    if (const std::optional<plot::SurfacePoint> whole = plot::WholePosition(plotted.x, plotted.y)) {
        markers_.push_back({
            .at = state_.map.mapImage ? *whole : plot::AtCentre(view.surface, *whole),
            .label = label,
        });
        sources_.push_back(source);
    }
}

void MapPainter::UpdateLabels()
{
    const auto records = state_.database.Records();
    const stations::Field field = LabelField(state_.configuration.labelChoice);
    if (layer_.LabelCount() > kLabelsPerRecord * records.size() + kFewLabels) {
        layer_.Restart();
        recordLabels_.clear();
    }
    const std::size_t known = std::min(recordLabels_.size(), records.size());
    recordLabels_.resize(records.size());
    for (std::size_t i = 0; i < records.size(); ++i) {
        const std::string_view label = records[i].Bytes(field);
        if (i >= known || layer_.Text(recordLabels_[i]) != label) {
            recordLabels_[i] = layer_.Number(label);
        }
    }
}

void MapPainter::CollectStations(const plot::MapView& view)
{
    UpdateLabels();
    const auto records = state_.database.Records();
    const auto shown = [&](std::size_t i) {
        // The list is asked only where its answer matters.
        return view.showMarked == view.showUnmarked || mainWindow_.IsMarked(i) == view.showMarked;
    };
    const auto source = [](std::size_t i) {
        return MarkerSource{.kind = MarkerSource::Kind::Record,
                            .index = static_cast<std::uint32_t>(i)};
    };
    if (state_.map.mapImage) {
        const map::ReferenceTable& table = state_.map.references;
        const auto pixels =
            plot_.Image(records, CurrentModel(), [&](auto positions, std::span<map::Pixel> result) {
                if (table.ReferenceMode()) {
                    map::GeoToPixel(table, positions, result);
                    return;
                }
                for (std::size_t i = 0; i < positions.size(); ++i) {
                    result[i] =
                        plot::InterpolatedPixel(state_.map.edges, image_.Size(), positions[i]);
                }
            });
        for (std::size_t i = 0; i < records.size(); ++i) {
            if (shown(i)) {
                AddMarker(
                    view,
                    {.x = pixels[i].x - view.clipOrigin.x, .y = pixels[i].y - view.clipOrigin.y},
                    recordLabels_[i], source(i));
            }
        }
        return;
    }
    const plot::ZoomScale scale = plot::ComputeScale(state_.configuration.zoomLevel);
    const double units = plot::PolarUnitsPerKilometre(view.surface, scale.ViewRange());
    const auto seen = plot_.Polar(records, state_.shown.position[0]);
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (shown(i)) {
            AddMarker(view, plot::PolarOffset(seen[i], units), recordLabels_[i], source(i));
        }
    }
}

void MapPainter::CollectMarkers(const plot::MapView& view)
{
    markers_.clear();
    sources_.clear();
    if (view.showMarked || view.showUnmarked) {
        CollectStations(view);
    }
    const stations::Configuration& configuration = state_.configuration;
    const stations::Field field = LabelField(configuration.labelChoice);
    const bool shown[] = {configuration.showStation1, configuration.showStation2};
    for (const std::uint32_t station : {0U, 1U}) {
        if (shown[station]) {
            AddMarker(view, Plot(view, state_.shown.position[station]),
                      layer_.Number(state_.shown.record[station].Bytes(field)),
                      {.kind = MarkerSource::Kind::Station, .index = station});
        }
    }
    const map::ReferenceTable& table = state_.map.references;
    if (!state_.map.mapImage || !table.ReferenceMode() || !configuration.showReferencePoints) {
        return;
    }
    std::uint32_t index = 0;
    for (const map::ReferencePoint& point : table.Points()) {
        const std::string label =
            "(REF" + state_.numberFormat(static_cast<double>(index) + 1.0, "0") + ")";
        AddMarker(view, {.x = point.X - view.clipOrigin.x, .y = point.Y - view.clipOrigin.y},
                  layer_.Number(label), {.kind = MarkerSource::Kind::Reference, .index = index});
        ++index;
    }
}

void MapPainter::DrawLines(QImage& frame, const plot::MapView& view) const
{
    const bool grid =
        state_.map.mapImage && state_.map.references.ReferenceMode() && view.grid.has_value();
    if (!grid && view.route.Empty()) {
        return;
    }
    LinePainter lines(frame, view.surface, scale_);
    const map::Pixel origin = {.x = static_cast<double>(view.clipOrigin.x),
                               .y = static_cast<double>(view.clipOrigin.y)};
    if (grid) {
        for (const plot::Line& piece : plot::VisiblePieces(*view.grid, origin, view.surface)) {
            lines.Draw({.from = {.x = piece.from.x - origin.x, .y = piece.from.y - origin.y},
                        .to = {.x = piece.to.x - origin.x, .y = piece.to.y - origin.y}});
        }
    }
    const auto place = [&](const plot::RoutePoint& point) -> map::Pixel {
        const map::Pixel plotted = Plot(view, point.position);
        const map::Pixel centre = state_.map.mapImage ? map::Pixel{}
                                                      : map::Pixel{.x = view.surface.width / 2.0,
                                                                   .y = view.surface.height / 2.0};
        return {.x = base::RoundHalfEven(centre.x + base::RoundHalfEven(plotted.x)),
                .y = base::RoundHalfEven(centre.y + base::RoundHalfEven(plotted.y))};
    };
    const auto points = view.route.Points();
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (points[i].pen == plot::Pen::Down) {
            lines.Draw({.from = place(points[i - 1]), .to = place(points[i])});
        }
    }
}

std::optional<MarkerSource> MapPainter::MarkerAt(plot::SurfacePoint point) const
{
    const auto x = static_cast<int>(point.x * scale_);
    const auto y = static_cast<int>(point.y * scale_);
    for (std::size_t i = markers_.size(); i-- > 0;) {
        const std::string_view label = layer_.Text(markers_[i].label);
        const plot::PixelBox plate = marker_->Plate(markers_[i].at, marker_->TextWidth(label));
        if (x >= plate.left && x < plate.right && y >= plate.top && y < plate.bottom) {
            return sources_[i];
        }
    }
    return std::nullopt;
}

}  // namespace ui
