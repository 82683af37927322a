#include "map/SampleMaps.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "base/Rounding.h"

namespace map {

namespace {

constexpr double kDegree = 0.017453292519943295;

double SixDecimals(double degrees)
{
    return base::RoundHalfEven(degrees * 1e6) / 1e6;
}

}  // namespace

double Between(Random& random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

SampleMap ScannedSheet(Random& random, int count)
{
    SampleMap map;
    map.size = {.width = std::uniform_int_distribution<std::int32_t>(500, 6000)(random),
                .height = std::uniform_int_distribution<std::int32_t>(500, 6000)(random)};
    const double perPixel = Between(random, 0.05, 10.0) / map.size.width;
    const double turn = Between(random, -5.0, 5.0) * kDegree;
    const double middleLongitude = Between(random, -10.0, 30.0);
    const double middleLatitude = Between(random, 40.0, 60.0);
    const auto positionOf = [&](Pixel pixel) {
        const double right = (pixel.x - map.size.width / 2.0) * perPixel;
        const double up = (map.size.height / 2.0 - pixel.y) * perPixel;
        const double latitude = middleLatitude + right * std::sin(turn) + up * std::cos(turn);
        const double longitude =
            middleLongitude
            + (right * std::cos(turn) - up * std::sin(turn)) / std::cos(latitude * kDegree);
        return geo::GeoPosition{.latitude = SixDecimals(latitude),
                                .longitude = SixDecimals(longitude)};
    };
    while (map.points.size() < static_cast<std::size_t>(count)) {
        const double x = base::RoundHalfEven(Between(random, 0.0, map.size.width));
        const double y = base::RoundHalfEven(Between(random, 0.0, map.size.height));
        const geo::GeoPosition position = positionOf({x, y});
        map.points.push_back(
            {.X = x, .Y = y, .Longitude = position.longitude, .Latitude = position.latitude});
    }
    for (const Pixel pixel : EdgePixels(map.size)) {
        map.edges.push_back(positionOf(pixel));
    }
    return map;
}

namespace {

// A position in the rectangle around the reference points, `reach` times as large.
geo::GeoPosition PositionWithin(Random& random, const SampleMap& map, double reach)
{
    const auto [west, east] =
        std::minmax_element(map.points.begin(), map.points.end(),
                            [](const auto& a, const auto& b) { return a.Longitude < b.Longitude; });
    const auto [south, north] =
        std::minmax_element(map.points.begin(), map.points.end(),
                            [](const auto& a, const auto& b) { return a.Latitude < b.Latitude; });
    const double width = reach * (east->Longitude - west->Longitude) / 2.0;
    const double height = reach * (north->Latitude - south->Latitude) / 2.0;
    return {
        .latitude = (south->Latitude + north->Latitude) / 2.0 + Between(random, -height, height),
        .longitude = (west->Longitude + east->Longitude) / 2.0 + Between(random, -width, width)};
}

}  // namespace

int TableSize(int table)
{
    // Each of the 48 sizes once in 288 tables; the other 240 are small.
    const int turn = table % 288;
    return turn % 6 == 0 ? 3 + turn / 6 : 3 + turn % 11;
}

int SheetTables()
{
    return std::getenv("KOMPASSO_ALL_SHEETS") != nullptr ? 10000 : 1000;
}

geo::GeoPosition PositionInside(Random& random, const SampleMap& map)
{
    return PositionWithin(random, map, 1.0);
}

geo::GeoPosition PositionAround(Random& random, const SampleMap& map)
{
    return PositionWithin(random, map, 2.0);
}

std::vector<Pixel> EdgePixels(ImageSize size)
{
    const double width = size.width;
    const double height = size.height;
    const double middleX = base::RoundHalfEven(width / 2.0);
    const double middleY = base::RoundHalfEven(height / 2.0);
    return {{0.0, 0.0},     {0.0, height},  {width, 0.0},      {width, height},
            {middleX, 0.0}, {0.0, middleY}, {middleX, height}, {width, middleY}};
}

SampleMap PrintedGrid(int columns, int rows, double spacing, double longitude, double latitude)
{
    SampleMap map;
    map.size = {.width = 500 * (columns + 1), .height = 700 * (rows + 1)};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double bend = 3.0 * (column - 1) * (row - 2) + 2.0 * column * column;
            map.points.push_back(
                {.X = 500.0 * (column + 1) + 13.0 * row + bend,
                 .Y = map.size.height - 700.0 * (row + 1) - 17.0 * column + bend,
                 .Longitude = (base::RoundHalfEven(longitude / spacing) + column) * spacing,
                 .Latitude = (base::RoundHalfEven(latitude / spacing) + row) * spacing});
        }
    }
    return map;
}

}  // namespace map
