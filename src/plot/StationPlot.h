// Where the stations of the database stand in the views, kept from one frame to the next.
//
// Only what changed is computed again: every record's position is compared with the one it was
// computed from. So there is nothing to announce, and nothing can be out of date.

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"
#include "plot/PlotPosition.h"
#include "plot/ViewLayout.h"
#include "stations/StationRecord.h"

namespace plot {

// What the image pixel of a position depends on.
struct ImageModel {
    std::optional<std::vector<map::ReferencePoint>> references;  // none: between the edges
    map::EdgeCoordinates edges;
    map::ImageSize image;

    bool operator==(const ImageModel&) const = default;
};

// Image pixels of many positions; both have the same length.
using PixelsOf = std::function<void(std::span<const geo::GeoPosition>, std::span<map::Pixel>)>;

class StationPlot {
public:
    // Every record as seen from Station 1, in the order of the records.
    std::span<const PolarPosition> Polar(std::span<const stations::StationRecord> records,
                                         geo::GeoPosition station1);

    // Every record's pixel of the whole image. `pixelsOf` computes what `model` describes.
    std::span<const map::Pixel> Image(std::span<const stations::StationRecord> records,
                                      const ImageModel& model, const PixelsOf& pixelsOf);

private:
    // Takes over the records' positions; afterwards stale_ holds the index of every record that
    // changed, or all of them.
    void TakePositions(std::span<const stations::StationRecord> records, bool all);

    std::vector<geo::GeoPosition> positions_;
    std::vector<std::uint32_t> stale_;

    // One of the two is in use, the one of the view shown last.
    std::optional<geo::GeoPosition> station1_;
    std::vector<PolarPosition> polar_;
    std::optional<ImageModel> model_;
    std::vector<map::Pixel> pixels_;
};

}  // namespace plot
