#include "ui/map/MapPainter.h"

#include <string>

#include <QPainter>

#include "base/Rounding.h"
#include "ui/map/LinePainter.h"

namespace ui {

namespace {

// Labels of earlier frames are forgotten beyond this many for each record.
constexpr std::size_t kLabelsPerRecord = 3;
constexpr std::size_t kFewLabels = 10'000;

// The field of a record that labels its marker; the choices are named after theirs.
stations::Field LabelField(stations::LabelChoice labelChoice)
{
    static_assert(static_cast<int>(stations::LabelChoice::Remark)
                  == static_cast<int>(stations::Field::Remark));
    return static_cast<stations::Field>(CountedLabelChoice(labelChoice));
}

}  // namespace

stations::LabelChoice CountedLabelChoice(stations::LabelChoice stored)
{
    using stations::LabelChoice;
    return stored < LabelChoice::Callsign || stored > LabelChoice::Remark ? LabelChoice::Callsign
                                                                          : stored;
}

MapPainter::MapPainter(const app::AppState& state, const MapImage& image,
                       const app::MainWindowPort& mainWindow)
    : state_(state), image_(image), mainWindow_(mainWindow), plot_(state, image)
{
}

void MapPainter::Redraw(QImage& frame, const plot::MapView& view, qreal scale, QColor plate)
{
    const QColor ink = state_.map.mapImage ? kMapInk : kPolarInk;
    if (!marker_ || marker_->Scale() != scale) {
        marker_.emplace(scale, plate, ink);
    }
    marker_->SetColours(plate, ink);
    DrawGround(frame, view);
    CollectMarkers(view);
    layer_.Paint(frame, markers_, *marker_);
    DrawLines(frame, view);
}

void MapPainter::DrawGround(QImage& frame, const plot::MapView& view)
{
    if (state_.map.mapImage) {
        const QRect area(view.clipOrigin.x, view.clipOrigin.y, view.surface.width,
                         view.surface.height);
        QPainter painter(&frame);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(marker_->Scale(), marker_->Scale());
        painter.drawImage(0, 0, image_.Clip(area));
        return;
    }
    polar_.Draw(frame, view.surface, state_.configuration.zoomLevel, *marker_, state_.numberFormat);
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
    const auto plotted = plot_.OfRecords(view);
    for (std::size_t i = 0; i < plotted.size(); ++i) {
        // The list is asked only where its answer matters.
        if (view.showMarked == view.showUnmarked || mainWindow_.IsMarked(i) == view.showMarked) {
            AddMarker(view, plotted[i], recordLabels_[i],
                      {.kind = MarkerSource::Kind::Record, .index = static_cast<std::uint32_t>(i)});
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
            AddMarker(view, plot_.Of(view, state_.shown.position[station]),
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
    LinePainter lines(frame, view.surface, marker_->Scale());
    const map::Pixel origin = {.x = static_cast<double>(view.clipOrigin.x),
                               .y = static_cast<double>(view.clipOrigin.y)};
    if (grid) {
        for (const plot::Line& piece : plot::VisiblePieces(*view.grid, origin, view.surface)) {
            lines.Draw({.from = {.x = piece.from.x - origin.x, .y = piece.from.y - origin.y},
                        .to = {.x = piece.to.x - origin.x, .y = piece.to.y - origin.y}});
        }
    }
    const auto place = [&](const plot::RoutePoint& point) -> map::Pixel {
        const map::Pixel plotted = plot_.Of(view, point.position);
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
    for (std::size_t i = markers_.size(); i-- > 0;) {
        const std::string_view label = layer_.Text(markers_[i].label);
        const plot::PixelBox plate = marker_->Plate(markers_[i].at, marker_->TextWidth(label));
        const auto x = static_cast<int>(point.x * marker_->Scale());
        const auto y = static_cast<int>(point.y * marker_->Scale());
        if (x >= plate.left && x < plate.right && y >= plate.top && y < plate.bottom) {
            return sources_[i];
        }
    }
    return std::nullopt;
}

}  // namespace ui
