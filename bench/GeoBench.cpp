// Run times of the geodetic core, one call on one of many random positions at a time.

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

#include <benchmark/benchmark.h>

#include "geo/Distance.h"
#include "geo/GaussKrueger.h"
#include "geo/Locator.h"
#include "geo/Utm.h"

namespace geo {
namespace {

constexpr std::size_t kCount = 4096;  // a power of two, small enough for the cache
constexpr std::uint8_t kEd50 = 1;

std::array<GeoPosition, kCount> RandomPositions()
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> latitude(-80.0, 84.0);
    std::uniform_real_distribution<double> longitude(-180.0, 180.0);
    std::array<GeoPosition, kCount> positions;
    for (GeoPosition& position : positions) {
        position = {.latitude = latitude(random), .longitude = longitude(random)};
    }
    return positions;
}

// Calls `function` with one position after the other.
template <typename Function>
void ForEachPosition(benchmark::State& state, Function function)
{
    const auto positions = RandomPositions();
    std::size_t i = 0;
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(function(positions[i]));
        i = (i + 1) % kCount;
    }
}

void LocatorFromPosition(benchmark::State& state)
{
    ForEachPosition(state,
                    [](GeoPosition p) { return PositionToLocator(p.latitude, p.longitude); });
}
BENCHMARK(LocatorFromPosition);

void PositionFromLocator(benchmark::State& state)
{
    std::array<std::string, kCount> locators;
    const auto positions = RandomPositions();
    for (std::size_t i = 0; i < kCount; ++i) {
        locators[i] = PositionToLocator(positions[i].latitude, positions[i].longitude);
    }
    std::size_t i = 0;
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(LocatorToPosition(locators[i]));
        i = (i + 1) % kCount;
    }
}
BENCHMARK(PositionFromLocator);

constexpr GeoPosition kHome = {.latitude = 48.35, .longitude = 11.45};

void DistanceAlone(benchmark::State& state)
{
    ForEachPosition(state, [](GeoPosition p) { return Distance(kHome, p); });
}
BENCHMARK(DistanceAlone);

void DistanceAndDirection(benchmark::State& state)
{
    ForEachPosition(state, [](GeoPosition p) { return DistanceAndRawBearing(kHome, p); });
}
BENCHMARK(DistanceAndDirection);

void GaussKruegerForward(benchmark::State& state)
{
    ForEachPosition(state, [](GeoPosition p) { return GeoGk(p, kEd50); });
}
BENCHMARK(GaussKruegerForward);

void GaussKruegerInverse(benchmark::State& state)
{
    ForEachPosition(state, [](GeoPosition p) {
        const GridPosition grid = {.easting = 3500000.0 + 800.0 * p.longitude,
                                   .northing = 111000.0 * p.latitude};
        return GkToGeo(grid, kEd50);
    });
}
BENCHMARK(GaussKruegerInverse);

void UtmForward(benchmark::State& state)
{
    ForEachPosition(state, GeoUTM);
}
BENCHMARK(UtmForward);

void UtmInverse(benchmark::State& state)
{
    ForEachPosition(state, [](GeoPosition p) {
        return UtmToGeo(32.0, 500000.0 + 1600.0 * p.longitude, 111000.0 * p.latitude);
    });
}
BENCHMARK(UtmInverse);

}  // namespace
}  // namespace geo
