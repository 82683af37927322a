#include "map/CalibrationFile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "base/CodePage.h"
#include "base/NumberText.h"
#include "base/Rounding.h"

namespace map {

namespace {

constexpr std::size_t kMostCharacters = 32767;
constexpr std::string_view kLineEnd = "\r\n";

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// `value` with at least `digits` digits.
std::string Padded(std::int32_t value, std::size_t digits)
{
    const std::string text = std::to_string(value);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

std::string InfAngle(double angle, std::size_t degreeDigits, char positive, char negative)
{
    const double rounded = std::fabs(angle) + 1.0 / 12000.0;
    const auto degrees = base::Saturate<std::int32_t>(rounded);
    const double rest = (rounded - degrees) * 60.0;
    const auto minutes = base::Saturate<std::int32_t>(rest);
    const auto hundredths = base::Saturate<std::int32_t>((rest - minutes) * 100.0);
    return Padded(degrees, degreeDigits) + '.' + Padded(minutes, 2) + '.' + Padded(hundredths, 2)
           + (angle < 0.0 ? negative : positive);
}

std::int32_t Half(std::int32_t length)
{
    return base::Saturate<std::int32_t>(base::RoundHalfEven(length / 2.0));
}

// A coordinate of the text.
struct Coordinate {
    bool isLatitude;
    double degrees;
};

// Digits that `text` ends with, at most `most`; they are cut off. None when there are no digits or
// more.
std::optional<std::string_view> TakeDigits(std::string_view& text, std::size_t most)
{
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[text.size() - 1 - count])) {
        ++count;
    }
    if (count == 0 || count > most) {
        return std::nullopt;
    }
    const std::string_view digits = text.substr(text.size() - count);
    text.remove_suffix(count);
    return digits;
}

bool TakeOneOf(std::string_view& text, std::string_view characters)
{
    if (text.empty() || characters.find(text.back()) == std::string_view::npos) {
        return false;
    }
    text.remove_suffix(1);
    return true;
}

// The unsigned angle that `text` ends with.
std::optional<double> AngleBefore(std::string_view text)
{
    while (TakeOneOf(text, " \t")) {
    }
    const auto decimals = TakeDigits(text, kMostCharacters);
    if (!decimals || !TakeOneOf(text, ".,")) {
        return std::nullopt;
    }
    const auto minutes = TakeDigits(text, 2);
    if (!minutes || !TakeOneOf(text, ".")) {
        return std::nullopt;
    }
    const auto degrees = TakeDigits(text, 3);
    if (!degrees || TakeOneOf(text, ".")) {
        return std::nullopt;
    }
    const double whole = base::Val(*minutes);
    if (whole >= 60.0) {
        return std::nullopt;
    }
    const double part = base::Val("0." + std::string(*decimals));
    return base::Val(*degrees) + (whole + part) / 60.0;
}

// The coordinate whose hemisphere letter stands at `position`.
std::optional<Coordinate> CoordinateAt(std::string_view text, std::size_t position)
{
    constexpr std::string_view kLetters = "NSEW";
    const char letter = text[position];
    if (kLetters.find(letter) == std::string_view::npos) {
        return std::nullopt;
    }
    const auto angle = AngleBefore(text.substr(0, position));
    if (!angle) {
        return std::nullopt;
    }
    const bool negative = letter == 'S' || letter == 'W';
    return Coordinate{.isLatitude = letter == 'N' || letter == 'S',
                      .degrees = negative ? 0.0 - *angle : *angle};
}

// What a text names: the first two of each kind as bounds, and how many of each there are.
struct Scanned {
    InfBounds bounds;
    std::size_t latitudes = 0;
    std::size_t longitudes = 0;
};

Scanned Scan(std::string_view text)
{
    text = text.substr(0, kMostCharacters);
    Scanned scanned;
    InfBounds& bounds = scanned.bounds;
    double* const latitudes[] = {&bounds.firstLatitude, &bounds.secondLatitude};
    double* const longitudes[] = {&bounds.firstLongitude, &bounds.secondLongitude};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto coordinate = CoordinateAt(text, i);
        if (!coordinate) {
            continue;
        }
        std::size_t& count = coordinate->isLatitude ? scanned.latitudes : scanned.longitudes;
        if (count < 2) {
            *(coordinate->isLatitude ? latitudes : longitudes)[count] = coordinate->degrees;
        }
        ++count;
    }
    return scanned;
}

}  // namespace

std::string InfLatitude(double degrees)
{
    return InfAngle(degrees, 2, 'N', 'S');
}

std::string InfLongitude(double degrees)
{
    return InfAngle(degrees, 3, 'E', 'W');
}

std::optional<std::string> InfText(const ReferenceTable& table, ImageSize size,
                                   std::string_view imageName)
{
    const std::int32_t middleX = Half(size.width);
    const std::int32_t middleY = Half(size.height);
    const auto upper = KnownPosition(table, middleX, 0);
    const auto left = KnownPosition(table, 0, middleY);
    const auto lower = KnownPosition(table, middleX, size.height);
    const auto right = KnownPosition(table, size.width, middleY);
    if (!upper || !left || !lower || !right
        || !std::isfinite(upper->latitude + left->longitude + lower->latitude + right->longitude)) {
        return std::nullopt;
    }
    const auto line = [](double latitude, double longitude) {
        return InfLatitude(latitude) + ", " + InfLongitude(longitude) + std::string(kLineEnd);
    };
    std::string text =
        line(upper->latitude, left->longitude) + line(lower->latitude, right->longitude);
    text += base::ToCodePage(imageName);
    text += kLineEnd;
    return text;
}

InfBounds ReadInf(std::string_view text)
{
    return Scan(text).bounds;
}

bool IsInf(std::string_view text)
{
    if (text.size() > kMostCharacters || text.find('\0') != std::string_view::npos) {
        return false;
    }
    const Scanned scanned = Scan(text);
    return scanned.latitudes == 2 && scanned.longitudes == 2;
}

EdgeCoordinates EdgesOf(const InfBounds& bounds)
{
    return {.left = std::min(bounds.firstLongitude, bounds.secondLongitude),
            .right = std::max(bounds.firstLongitude, bounds.secondLongitude),
            .upper = std::max(bounds.firstLatitude, bounds.secondLatitude),
            .lower = std::min(bounds.firstLatitude, bounds.secondLatitude)};
}

std::vector<ReferencePoint> ReferencesFromInf(const InfBounds& bounds, ImageSize size)
{
    std::vector<ReferencePoint> entries;
    for (const std::int32_t x : {0, size.width}) {
        for (const std::int32_t y : {0, size.height}) {
            const double longitudes = bounds.secondLongitude - bounds.firstLongitude;
            const double latitudes = bounds.secondLatitude - bounds.firstLatitude;
            entries.push_back(
                {.X = static_cast<double>(x),
                 .Y = static_cast<double>(y),
                 .Longitude = bounds.firstLongitude + longitudes * x / std::max(size.width, 1),
                 .Latitude = bounds.firstLatitude + latitudes * y / std::max(size.height, 1)});
        }
    }
    entries.emplace_back();
    return entries;
}

}  // namespace map
