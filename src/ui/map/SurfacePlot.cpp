#include "ui/map/SurfacePlot.h"

#include <algorithm>

#include "map/Georeference.h"
#include "plot/ZoomLevels.h"

namespace ui {

namespace {

map::Pixel FromClip(map::Pixel pixel, const plot::MapView& view)
{
    return {.x = pixel.x - view.clipOrigin.x, .y = pixel.y - view.clipOrigin.y};
}

double UnitsPerKilometre(const plot::MapView& view, int zoomLevel)
{
    return plot::PolarUnitsPerKilometre(view.surface, plot::ComputeScale(zoomLevel).ViewRange());
}

}  // namespace

map::Pixel SurfacePlot::ImagePixel(geo::GeoPosition position) const
{
    const map::ReferenceTable& table = state_.map.references;
    return table.ReferenceMode()
               ? map::GeoToPixel(table, position)
               : plot::InterpolatedPixel(state_.map.edges, image_.Size(), position);
}

map::Pixel SurfacePlot::Of(const plot::MapView& view, geo::GeoPosition position) const
{
    return state_.map.mapImage
               ? FromClip(ImagePixel(position), view)
               : plot::PolarOffset(plot::PolarFrom(state_.shown.position[0], position),
                                   UnitsPerKilometre(view, state_.configuration.zoomLevel));
}

plot::ImageModel SurfacePlot::CurrentModel() const
{
    const map::ReferenceTable& table = state_.map.references;
    plot::ImageModel model{.references = {}, .edges = state_.map.edges, .image = image_.Size()};
    if (table.ReferenceMode()) {
        model.references.emplace(table.Points().begin(), table.Points().end());
    }
    return model;
}

std::span<const map::Pixel> SurfacePlot::OfRecords(const plot::MapView& view)
{
    const auto records = state_.database.Records();
    records_.resize(records.size());
    if (state_.map.mapImage) {
        const map::ReferenceTable& table = state_.map.references;
        const auto pixels =
            stations_.Image(records, CurrentModel(), [&](auto positions, auto result) {
                if (table.ReferenceMode()) {
                    map::GeoToPixel(table, positions, result);
                } else {
                    std::ranges::transform(positions, result.begin(),
                                           [this](auto position) { return ImagePixel(position); });
                }
            });
        std::ranges::transform(pixels, records_.begin(),
                               [&](map::Pixel pixel) { return FromClip(pixel, view); });
    } else {
        const double units = UnitsPerKilometre(view, state_.configuration.zoomLevel);
        std::ranges::transform(
            stations_.Polar(records, state_.shown.position[0]), records_.begin(),
            [units](const plot::PolarPosition& seen) { return plot::PolarOffset(seen, units); });
    }
    return records_;
}

}  // namespace ui
