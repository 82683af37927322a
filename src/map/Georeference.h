// Positions on the earth to pixels of the map image and back.
//
// No conversion fails: without three usable reference points the result is 0/0.

#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferenceTable.h"

namespace map {

// Pixel of a position. Results beyond the 16-bit range stand at its limits, with thresholds that
// differ between the axes: |x| > 32768, |y| > 32767. NaN for a position that is not finite.
Pixel GeoToPixel(const ReferenceTable& table, geo::GeoPosition position);

// The same for many positions, at a fraction of the time; as many pixels as positions.
void GeoToPixel(const ReferenceTable& table, std::span<const geo::GeoPosition> positions,
                std::span<Pixel> pixels);

// First estimate of the inverse, by the same blend the other way round.
geo::GeoPosition PixelToGeoEstimate(const ReferenceTable& table, std::int32_t x, std::int32_t y);

// The estimate where there is one; none when no triangle contributes.
std::optional<geo::GeoPosition> KnownPosition(const ReferenceTable& table, std::int32_t x,
                                              std::int32_t y);

// A position, and how far from the pixel it is drawn (pixels).
struct FoundPosition {
    geo::GeoPosition position;
    double error = 0.0;
};

// Tolerances of PixelToGeo, in pixels.
inline constexpr double kClickTolerance = 0.001;
inline constexpr double kPointerTolerance = 0.01;

enum class Refinement { Off, On };

// Position of a pixel: the estimate, with On improved by a search against GeoToPixel until the
// error is below `tolerance`. The search goes along the meridian and the parallel in steps that
// double while they help and halve while they do not; after 1001 rounds it ends where it is.
FoundPosition PixelToGeo(const ReferenceTable& table, std::int32_t x, std::int32_t y,
                         double tolerance, Refinement refinement);

// Whether PixelToGeo gives a pixel a position of the earth: by the estimate, or by a search that
// has triangles of both directions to go by.
bool GivesPosition(const ReferenceTable& table, std::int32_t x, std::int32_t y,
                   Refinement refinement);

// Pixels, 1 to kLongestEdge each.
struct ImageSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const ImageSize&) const = default;
};

// The products of corner numbers and edges are 16-bit: larger images cannot be georeferenced.
inline constexpr std::int32_t kLongestEdge = 32767;

inline bool CanBeGeoreferenced(ImageSize size)
{
    return size.width >= 1 && size.height >= 1 && size.width <= kLongestEdge
           && size.height <= kLongestEdge;
}

// Position of a corner of the image: i is 0 at the left, 1 at the right, j is 0 at the top.
FoundPosition CornerToGeo(const ReferenceTable& table, ImageSize size, int i, int j,
                          Refinement refinement);

}  // namespace map
