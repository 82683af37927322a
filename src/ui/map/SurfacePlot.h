// Where positions stand on the surface: offsets from the centre in the polar view, surface
// positions in the map view; unrounded.

#pragma once

#include <span>
#include <vector>

#include "app/AppState.h"
#include "plot/MapView.h"
#include "plot/StationPlot.h"
#include "ui/map/MapImage.h"

namespace ui {

class SurfacePlot {
public:
    SurfacePlot(const app::AppState& state, const MapImage& image) : state_(state), image_(image) {}

    map::Pixel Of(const plot::MapView& view, geo::GeoPosition position) const;

    // Every record's, until the next call.
    std::span<const map::Pixel> OfRecords(const plot::MapView& view);

private:
    map::Pixel ImagePixel(geo::GeoPosition position) const;
    plot::ImageModel CurrentModel() const;

    const app::AppState& state_;
    const MapImage& image_;
    plot::StationPlot stations_;
    std::vector<map::Pixel> records_;
};

}  // namespace ui
