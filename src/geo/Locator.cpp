#include "geo/Locator.h"

#include <array>
#include <cmath>

#include "base/Rounding.h"

namespace geo {

namespace {

constexpr std::size_t kLength = 6;

// What stands in for a character that the text does not have; no value function accepts it.
constexpr char kMissing = '\0';

// Only letters become letters by this: the cases of ASCII differ in one bit.
char UpperCase(char c)
{
    return static_cast<char>(static_cast<unsigned char>(c) & 0xDFU);
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

bool IsAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// The character at `pos` of UTF-8 text. They are counted as characters, so that a stray umlaut
// takes one place and not two; its lead byte stands for it, which no value function accepts.
char CharacterAt(std::string_view locator, std::size_t pos)
{
    for (const char c : locator) {
        if (!IsContinuation(c) && pos-- == 0) {
            return c;
        }
    }
    return kMissing;
}

// `c` has six characters at least.
inline GeoPosition SubsquareCentre(std::string_view c)
{
    const int longitude = 20 * FieldValue(c[0]) + 2 * SquareValue(c[2]);
    const int latitude = 10 * FieldValue(c[1]) + SquareValue(c[3]);
    // In whole half subsquares, so that only the division rounds: the centre is the odd one.
    return {
        .latitude = (48 * latitude + 2 * SubsquareValue(c[5]) + 1) / 48.0,
        .longitude = (24 * longitude + 2 * SubsquareValue(c[4]) + 1) / 24.0,
    };
}

std::int16_t Floor(double value)
{
    return base::SaturateFloor<std::int16_t>(value);
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
    // In ASCII, which every locator is, bytes are characters.
    const std::string_view l = locator;
    if (l.size() >= kLength
        && IsAscii(static_cast<char>(l[0] | l[1] | l[2] | l[3] | l[4] | l[5]))) {
        return SubsquareCentre(locator);
    }
    std::string characters;
    for (std::size_t pos = 0; pos < kLength; ++pos) {
        characters += CharacterAt(locator, pos);
    }
    return SubsquareCentre(characters);
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
    std::string locator(kLength, '?');
    locator[0] = LocatorCharacter(fieldX, 'A');
    locator[1] = LocatorCharacter(fieldY, 'A');
    locator[2] = LocatorCharacter(squareX, '0');
    locator[3] = LocatorCharacter(squareY, '0');
    locator[4] = LocatorCharacter(Floor(x * 12.0), 'A');
    locator[5] = LocatorCharacter(Floor(y * 24.0), 'A');
    return locator;
}

}  // namespace geo
