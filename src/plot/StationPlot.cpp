#include "plot/StationPlot.h"

#include <algorithm>
#include <bit>

namespace plot {

namespace {

// By their bits, so that a position that is no number does not count as changed for ever.
bool SameBits(geo::GeoPosition a, geo::GeoPosition b)
{
    return std::bit_cast<std::uint64_t>(a.latitude) == std::bit_cast<std::uint64_t>(b.latitude)
           && std::bit_cast<std::uint64_t>(a.longitude)
                  == std::bit_cast<std::uint64_t>(b.longitude);
}

}  // namespace

void StationPlot::TakePositions(std::span<const stations::StationRecord> records, bool all)
{
    const std::size_t known = all ? 0 : std::min(positions_.size(), records.size());
    positions_.resize(records.size());
    stale_.clear();
    for (std::size_t i = 0; i < records.size(); ++i) {
        const geo::GeoPosition position = records[i].Position();
        if (i >= known || !SameBits(position, positions_[i])) {
            positions_[i] = position;
            stale_.push_back(static_cast<std::uint32_t>(i));
        }
    }
}

std::span<const PolarPosition> StationPlot::Polar(std::span<const stations::StationRecord> records,
                                                  geo::GeoPosition station1)
{
    TakePositions(records, !station1_ || !SameBits(*station1_, station1));
    station1_ = station1;
    model_.reset();
    polar_.resize(records.size());
    for (const std::uint32_t i : stale_) {
        polar_[i] = PolarFrom(station1, positions_[i]);
    }
    return polar_;
}

std::span<const map::Pixel> StationPlot::Image(std::span<const stations::StationRecord> records,
                                               const ImageModel& model, const PixelsOf& pixelsOf)
{
    TakePositions(records, model_ != model);
    model_ = model;
    station1_.reset();
    pixels_.resize(records.size());
    if (stale_.size() == records.size()) {
        pixelsOf(positions_, pixels_);
        return pixels_;
    }
    for (const std::uint32_t i : stale_) {
        pixelsOf(std::span(positions_).subspan(i, 1), std::span(pixels_).subspan(i, 1));
    }
    return pixels_;
}

}  // namespace plot
