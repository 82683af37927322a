#include "geo/DistanceText.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "geo/Distance.h"

namespace geo {

namespace {

constexpr std::string_view kAnglePattern = "#0.00 Grad";

std::string AzimuthText(double rawBearing, const base::NumberFormat& format)
{
    const double azimuth = rawBearing + 90.0;
    return format(azimuth >= 360.0 ? azimuth - 360.0 : azimuth, kAnglePattern);
}

// A sector reaches from 45 degrees before its point to just under 45 degrees behind it.
std::string CompassText(double rawBearing, const base::NumberFormat& format)
{
    // Clockwise from east, all of one width; a full turn ends at the first again.
    constexpr std::array<std::string_view, 5> kPoints = {"OST  ", "SUED ", "WEST ", "NORD ",
                                                         "OST  "};
    std::size_t point = 0;
    double off = rawBearing;
    while (point + 1 < kPoints.size() && off >= 45.0) {
        off -= 90.0;
        ++point;
    }
    std::string text(kPoints[point]);
    text += off < 0.0 ? " - " : " + ";
    return text + format(std::fabs(off), kAnglePattern);
}

}  // namespace

std::string DirectionText(GeoPosition start, GeoPosition target, DirectionMode mode,
                          const base::NumberFormat& format)
{
    const double rawBearing = RawBearing(start, target);
    if (!std::isfinite(rawBearing)) {
        return {};
    }
    return mode == DirectionMode::CompassPoint ? CompassText(rawBearing, format)
                                               : AzimuthText(rawBearing, format);
}

std::string DistanceLine(double kilometres, const base::NumberFormat& format)
{
    if (kilometres < 1e-5) {
        return format(kilometres * 1e6, "Entfernung = ###0.000 mm");
    }
    if (kilometres < 0.5) {
        return format(kilometres * 1e3, "Entfernung = ###0.000 m");
    }
    return format(kilometres, "Entfernung = ###0.000 km");
}

}  // namespace geo
