#include "geo/Locator.h"

#include <array>
#include <cmath>

#include "base/Rounding.h"

namespace geo {

namespace {

constexpr std::size_t kLength = 6;

// What stands in for a character that the text does not have; no value function accepts it.
constexpr char kMissing = '\0';

char UpperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::int16_t LetterValue(char c, char zero)
{
    const char letter = UpperCase(c);
    return letter >= 'A' && letter <= 'X' ? static_cast<std::int16_t>(letter - zero)
                                          : std::int16_t{0};
}

std::int16_t FieldValue(char c)
{
    return LetterValue(c, 'J');
}

std::int16_t SquareValue(char c)
{
    return c >= '0' && c <= '9' ? static_cast<std::int16_t>(c - '0') : std::int16_t{0};
}

std::int16_t SubsquareValue(char c)
{
    return LetterValue(c, 'A');
}

// The first six characters of UTF-8 text. They are counted as characters, so that a stray umlaut
// takes one place and not two; its lead byte stands for it, which no value function accepts.
std::array<char, kLength> FirstCharacters(std::string_view text)
{
    std::array<char, kLength> characters{};
    static_assert(kMissing == '\0');
    std::size_t count = 0;
    for (const char c : text) {
        if ((static_cast<unsigned char>(c) & 0xC0U) == 0x80U) {
            continue;
        }
        if (count == kLength) {
            break;
        }
        characters[count++] = c;
    }
    return characters;
}

char CharacterAt(std::string_view locator, std::size_t pos)
{
    return pos < kLength ? FirstCharacters(locator)[pos] : kMissing;
}

std::int16_t Floor(double value)
{
    return base::Saturate<std::int16_t>(std::floor(value));
}

char LocatorCharacter(std::int16_t value, char zero)
{
    const int code = zero + value;
    return code >= ' ' && code <= '~' ? static_cast<char>(code) : '?';
}

}  // namespace

std::int16_t LocCharVal(std::string_view locator, std::size_t pos)
{
    return FieldValue(CharacterAt(locator, pos));
}

std::int16_t LocNumVal(std::string_view locator, std::size_t pos)
{
    return SquareValue(CharacterAt(locator, pos));
}

std::int16_t LocSuffVal(std::string_view locator, std::size_t pos)
{
    return SubsquareValue(CharacterAt(locator, pos));
}

GeoPosition LocatorToPosition(std::string_view locator)
{
    const std::array<char, kLength> c = FirstCharacters(locator);
    const int longitude = 20 * FieldValue(c[0]) + 2 * SquareValue(c[2]);
    const int latitude = 10 * FieldValue(c[1]) + SquareValue(c[3]);
    return {
        .latitude = latitude + SubsquareValue(c[5]) / 24.0 + 1.0 / 48.0,
        .longitude = longitude + SubsquareValue(c[4]) / 12.0 + 1.0 / 24.0,
    };
}

std::string PositionToLocator(double latitude, double longitude)
{
    if (!std::isfinite(latitude) || !std::isfinite(longitude)) {
        return {};
    }
    double x = longitude + 180.0;
    double y = latitude + 90.0;
    const std::int16_t fieldX = Floor(x / 20.0);
    const std::int16_t fieldY = Floor(y / 10.0);
    x -= 20.0 * fieldX;
    y -= 10.0 * fieldY;
    const std::int16_t squareX = Floor(x / 2.0);
    const std::int16_t squareY = Floor(y);
    x -= 2.0 * squareX;
    y -= squareY;
    return {
        LocatorCharacter(fieldX, 'A'),          LocatorCharacter(fieldY, 'A'),
        LocatorCharacter(squareX, '0'),         LocatorCharacter(squareY, '0'),
        LocatorCharacter(Floor(x * 12.0), 'A'), LocatorCharacter(Floor(y * 24.0), 'A'),
    };
}

}  // namespace geo
