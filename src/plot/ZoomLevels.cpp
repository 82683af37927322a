#include "plot/ZoomLevels.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace plot {

namespace {

// The pairings are irregular on purpose: level 6 has six rings, levels 7 to 9 share one spacing.
constexpr std::array<ZoomScale, kFarthestZoom> kLevels = {{
    {10, 1},
    {20, 2},
    {50, 5},
    {100, 10},
    {200, 20},
    {300, 50},
    {500, 100},
    {800, 100},
    {1000, 100},
    {2000, 200},
    {3000, 500},
    {5000, 1000},
    {8000, 1000},
    {10'000, 2000},
    {15'000, 3000},
    {20'000, 5000},
    {30'000, 5000},
    {50'000, 10'000},
    {80'000, 10'000},
    {100'000, 20'000},
    {150'000, 25'000},
    {200'000, 50'000},
    {300'000, 50'000},
    {500'000, 100'000},
    {1'000'000, 200'000},
    {1'500'000, 250'000},
    {2'000'000, 500'000},
    {3'000'000, 500'000},
    {5'000'000, 1'000'000},
    {8'000'000, 1'000'000},
    {10'000'000, 2'000'000},
    {15'000'000, 2'500'000},
    {20'000'000, 5'000'000},
}};

constexpr int kStartLevel = 14;

}  // namespace

ZoomScale ComputeScale(int zoomLevel)
{
    const bool exists = zoomLevel >= kNearestZoom && zoomLevel <= kFarthestZoom;
    return kLevels[static_cast<std::size_t>((exists ? zoomLevel : kStartLevel) - 1)];
}

std::int16_t ZoomedIn(std::int16_t zoomLevel)
{
    return std::max(kNearestZoom, static_cast<std::int16_t>(zoomLevel - 1));
}

std::int16_t ZoomedOut(std::int16_t zoomLevel)
{
    return std::min(kFarthestZoom, static_cast<std::int16_t>(zoomLevel + 1));
}

}  // namespace plot
