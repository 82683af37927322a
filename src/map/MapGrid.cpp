#include "map/MapGrid.h"

#include <cmath>

#include "base/Rounding.h"

namespace map {

namespace {

constexpr double kMinutesPerDegree = 60.0;

// Lines over `span` degrees: one to begin below the edge and one to end above the other.
double LineCount(double span, std::int32_t spacing)
{
    return base::RoundHalfEven(span * (kMinutesPerDegree / spacing) + 2.0);
}

double FirstLine(double edge, std::int32_t spacing)
{
    return std::floor(edge * (kMinutesPerDegree / spacing));
}

// Whether all lines have numbers that an integer holds.
bool Countable(double first)
{
    return std::fabs(first) < 1e9;
}

}  // namespace

void CornerBounds::Widen(geo::GeoPosition position)
{
    south = position.latitude < south ? position.latitude : south;
    north = position.latitude > north ? position.latitude : north;
    west = position.longitude < west ? position.longitude : west;
    east = position.longitude > east ? position.longitude : east;
}

geo::GeoPosition MapGrid::Node(int parallel, int meridian) const
{
    // Whole minutes first, so that every line is the double nearest to its place.
    const auto degrees = [this](double line) { return line * spacing / kMinutesPerDegree; };
    return {.latitude = degrees(static_cast<double>(firstParallel) + parallel),
            .longitude = degrees(static_cast<double>(firstMeridian) + meridian)};
}

std::int32_t GridSpacing(double spans)
{
    const struct {
        double below;
        std::int32_t spacing;
    } rules[] = {{1.0, 1}, {2.0, 2}, {5.0, 5}, {10.0, 10}, {20.0, 30}, {60.0, 60}};
    for (const auto& rule : rules) {
        if (spans < rule.below) {
            return rule.spacing;
        }
    }
    return 600;
}

std::optional<MapGrid> GridOf(const CornerBounds& bounds)
{
    const double latitudes = bounds.north - bounds.south;
    const double longitudes = bounds.east - bounds.west;
    if (!std::isfinite(latitudes) || !std::isfinite(longitudes)) {
        return std::nullopt;
    }
    const std::int32_t spacing = GridSpacing(latitudes + longitudes);
    const double parallels = LineCount(latitudes, spacing);
    const double meridians = LineCount(longitudes, spacing);
    const double firstParallel = FirstLine(bounds.south, spacing);
    const double firstMeridian = FirstLine(bounds.west, spacing);
    if (parallels > kMostGridLines || meridians > kMostGridLines || !Countable(firstParallel)
        || !Countable(firstMeridian)) {
        return std::nullopt;
    }
    return MapGrid{.spacing = spacing,
                   .firstParallel = base::Saturate<std::int32_t>(firstParallel),
                   .firstMeridian = base::Saturate<std::int32_t>(firstMeridian),
                   .parallels = base::Saturate<std::int16_t>(parallels),
                   .meridians = base::Saturate<std::int16_t>(meridians)};
}

std::optional<MapGrid> GridOf(const ReferenceTable& table, ImageSize size, Refinement refinement)
{
    if (!table.Forward().Usable()) {
        return std::nullopt;
    }
    CornerBounds bounds;
    for (const int i : {0, 1}) {
        for (const int j : {0, 1}) {
            if (!GivesPosition(table, i * size.width, j * size.height, refinement)) {
                return std::nullopt;
            }
            const geo::GeoPosition corner = CornerToGeo(table, size, i, j, refinement).position;
            if (!std::isfinite(corner.latitude) || !std::isfinite(corner.longitude)) {
                return std::nullopt;
            }
            bounds.Widen(corner);
        }
    }
    return GridOf(bounds);
}

}  // namespace map
