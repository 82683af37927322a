#include "map/UtmSheet.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/Rounding.h"

namespace map {

namespace {

constexpr double kDegree = 0.017453292519943295;
constexpr double kWidth = 5000.0;
constexpr double kHeight = 4000.0;
constexpr double kTurn = 2.0 * kDegree;

// Metres east of the central meridian and north of the equator: transverse Mercator on the WGS 84
// ellipsoid, Krüger's series in the third flattening to its third power, good to micrometres within
// a strip.
Pixel TransverseMercator(geo::GeoPosition position, double centralMeridian)
{
    constexpr double kAxis = 6378137.0;
    constexpr double kFlattening = 1.0 / 298.257223563;
    constexpr double kScale = 0.9996;
    const double n = kFlattening / (2.0 - kFlattening);
    const double radius = kAxis / (1.0 + n) * (1.0 + n * n / 4.0 + n * n * n * n / 64.0);
    const double alpha[] = {n / 2.0 - 2.0 / 3.0 * n * n + 5.0 / 16.0 * n * n * n,
                            13.0 / 48.0 * n * n - 3.0 / 5.0 * n * n * n, 61.0 / 240.0 * n * n * n};
    const double e = std::sqrt(kFlattening * (2.0 - kFlattening));
    const double sine = std::sin(position.latitude * kDegree);
    const double t = std::sinh(std::atanh(sine) - e * std::atanh(e * sine));
    const double longitude = (position.longitude - centralMeridian) * kDegree;
    const double xi = std::atan2(t, std::cos(longitude));
    const double eta = std::asinh(std::sin(longitude) / std::hypot(t, std::cos(longitude)));
    double north = xi;
    double east = eta;
    for (int j = 1; j <= 3; ++j) {
        north += alpha[j - 1] * std::sin(2.0 * j * xi) * std::cosh(2.0 * j * eta);
        east += alpha[j - 1] * std::cos(2.0 * j * xi) * std::sinh(2.0 * j * eta);
    }
    return {.x = kScale * radius * east, .y = kScale * radius * north};
}

}  // namespace

UtmSheet::UtmSheet(int columns, int rows, double spacing, geo::GeoPosition southWest)
    : centralMeridian_(6.0 * std::floor(southWest.longitude / 6.0) + 3.0)
{
    const double firstColumn = base::RoundHalfEven(southWest.longitude / spacing);
    const double firstRow = base::RoundHalfEven(southWest.latitude / spacing);
    Pixel low = {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    Pixel high = {-low.x, -low.y};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const geo::GeoPosition crossing = {.latitude = (firstRow + row) * spacing,
                                               .longitude = (firstColumn + column) * spacing};
            const Pixel place = OnPaper(crossing);
            low = {std::min(low.x, place.x), std::min(low.y, place.y)};
            high = {std::max(high.x, place.x), std::max(high.y, place.y)};
            points_.push_back({.Longitude = crossing.longitude, .Latitude = crossing.latitude});
        }
    }
    scale_ = std::min(kWidth / (high.x - low.x), kHeight / (high.y - low.y));
    origin_ = low;
    for (ReferencePoint& point : points_) {
        const Pixel pixel = TruePixel({point.Latitude, point.Longitude});
        point.X = base::RoundHalfEven(pixel.x);
        point.Y = base::RoundHalfEven(pixel.y);
    }
}

// Metres on the turned sheet, y downwards.
Pixel UtmSheet::OnPaper(geo::GeoPosition position) const
{
    const Pixel metres = TransverseMercator(position, centralMeridian_);
    return {.x = metres.x * std::cos(kTurn) - metres.y * std::sin(kTurn),
            .y = -metres.x * std::sin(kTurn) - metres.y * std::cos(kTurn)};
}

Pixel UtmSheet::TruePixel(geo::GeoPosition position) const
{
    const Pixel place = OnPaper(position);
    return {.x = (place.x - origin_.x) * scale_, .y = (place.y - origin_.y) * scale_};
}

std::vector<UtmSheet> QualitySheets(int columns, int rows, const std::vector<double>& spacings)
{
    std::vector<UtmSheet> sheets;
    for (const double spacing : spacings) {
        for (const double latitude : {47.0, 49.7, 52.3, 54.6}) {
            for (const double longitude : {6.3, 10.1, 14.4}) {
                sheets.emplace_back(columns, rows, spacing, geo::GeoPosition{latitude, longitude});
            }
        }
    }
    return sheets;
}

std::vector<geo::GeoPosition> PositionsOver(const UtmSheet& sheet, double beyond, double spacing)
{
    constexpr int kPerEdge = 25;
    const ReferencePoint& first = sheet.Points().front();
    const ReferencePoint& last = sheet.Points().back();
    const double west = first.Longitude - beyond * spacing;
    const double south = first.Latitude - beyond * spacing;
    const double width = last.Longitude + beyond * spacing - west;
    const double height = last.Latitude + beyond * spacing - south;
    std::vector<geo::GeoPosition> positions;
    for (int i = 0; i <= kPerEdge; ++i) {
        for (int j = 0; j <= kPerEdge; ++j) {
            positions.push_back({.latitude = south + height * i / kPerEdge,
                                 .longitude = west + width * j / kPerEdge});
        }
    }
    return positions;
}

}  // namespace map
