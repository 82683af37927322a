#include "geo/AngleText.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

#include "base/Rounding.h"

namespace geo {

namespace {

constexpr std::size_t kListingDegreesWidth = 4;

// How many of the last unit make a minute.
double UnitsPerMinute(DegreeMinuteMode mode)
{
    return mode != DegreeMinuteMode::Seconds ? 100.0 : 60.0;
}

// The unsigned angle, half of the last unit larger: cut off behind that unit it is rounded.
double RaisedMagnitude(double degrees, DegreeMinuteMode mode)
{
    const double halfUnit = mode != DegreeMinuteMode::Seconds ? 1.0 / 12000.0 : 1.0 / 7200.0;
    return std::fabs(degrees) + halfUnit;
}

AngleComponents Components(double degrees, DegreeMinuteMode mode, char positive, char negative)
{
    if (!std::isfinite(degrees)) {
        return {};
    }
    const double raised = RaisedMagnitude(degrees, mode);
    const double wholeDegrees = std::floor(raised);
    const double minutes = (raised - wholeDegrees) * 60.0;
    const double wholeMinutes = std::floor(minutes);
    return {
        .degrees = base::Saturate<std::int16_t>(wholeDegrees),
        .minutes = base::Saturate<std::int16_t>(wholeMinutes),
        .third = base::Saturate<std::int16_t>((minutes - wholeMinutes) * UnitsPerMinute(mode)),
        .hemisphere = degrees < 0.0 ? negative : positive,
    };
}

// Four of the eight fields: degrees, minutes, third, hemisphere.
using AngleFields = std::span<std::string, 4>;
using ConstAngleFields = std::span<const std::string, 4>;

void WriteFields(AngleFields fields, const AngleComponents& angle)
{
    if (angle.hemisphere == ' ') {
        return;
    }
    fields[0] = std::to_string(angle.degrees);
    fields[1] = std::to_string(angle.minutes);
    fields[2] = std::to_string(angle.third);
    fields[3] = angle.hemisphere;
}

// `negative` holds the letter of the western or southern hemisphere in both cases.
double ReadFields(ConstAngleFields fields, DegreeMinuteMode mode, std::string_view negative)
{
    const double magnitude = base::ReadNumber(fields[0]) + base::ReadNumber(fields[1]) / 60.0
                             + base::ReadNumber(fields[2]) / (60.0 * UnitsPerMinute(mode));
    const bool turned =
        !fields[3].empty() && negative.find(fields[3].front()) != std::string_view::npos;
    return turned ? 0.0 - magnitude : magnitude;  // never a negative zero
}

}  // namespace

DegreeMinutes GRDMINSEC(GeoPosition position, DegreeMinuteMode mode)
{
    return {
        .longitude = Components(position.longitude, mode, 'O', 'W'),
        .latitude = Components(position.latitude, mode, 'N', 'S'),
    };
}

DegreeMinuteTexts FieldTexts(const DegreeMinutes& angles)
{
    DegreeMinuteTexts texts;
    WriteFields(std::span(texts).first<4>(), angles.longitude);
    WriteFields(std::span(texts).last<4>(), angles.latitude);
    return texts;
}

GeoPosition ReadDegreeMinutes(const DegreeMinuteTexts& texts, DegreeMinuteMode mode)
{
    return {
        .latitude = ReadFields(std::span(texts).last<4>(), mode, "Ss"),
        .longitude = ReadFields(std::span(texts).first<4>(), mode, "Ww"),
    };
}

std::string DecimalText(double degrees, const base::NumberFormat& format)
{
    return format(degrees, "##0.000000");
}

std::string ListingAngle(double degrees, DegreeMinuteMode mode)
{
    if (!std::isfinite(degrees)) {
        return {};
    }
    const base::NumberFormat format(".");
    const double raised = RaisedMagnitude(degrees, mode);
    const double wholeDegrees = std::floor(raised);
    const double rest = raised - wholeDegrees;

    std::string text = format(wholeDegrees, "##0");
    if (degrees < 0.0) {
        text.insert(0, 1, '-');
    }
    text.insert(0, kListingDegreesWidth - std::min(kListingDegreesWidth, text.size()), ' ');
    text += '.';
    if (mode != DegreeMinuteMode::Seconds) {
        return text + format(std::floor(rest * 6000.0) / 100.0, "00.00");
    }
    const double minutes = std::floor(rest * 60.0);
    const double seconds = std::floor((rest * 60.0 - minutes) * 60.0);
    return text + format(minutes, "00'") + format(seconds, "00\"");
}

}  // namespace geo
