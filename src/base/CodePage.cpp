#include "base/CodePage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace base {

namespace {

// Characters of the bytes 0x80 to 0x9F; all other bytes are the character of the same number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char CodePageByte(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(character));
    }
    const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), character);
    if (found == kHighControls.end()) {
        return '?';
    }
    return static_cast<char>(static_cast<unsigned char>(0x80 + (found - kHighControls.begin())));
}

bool IsAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

// Number of ASCII bytes that `text` begins with. Most texts are nothing else, so they are looked at
// eight bytes at a time.
std::size_t AsciiLength(std::string_view text)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t length = 0;
    for (std::uint64_t eight = 0; length + sizeof eight <= text.size(); length += sizeof eight) {
        std::memcpy(&eight, text.data() + length, sizeof eight);
        if ((eight & kHighBits) != 0) {
            break;
        }
    }
    const auto* const end = std::find_if_not(text.begin() + length, text.end(), IsAscii);
    return static_cast<std::size_t>(end - text.begin());
}

bool IsScalarValue(char32_t character)
{
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

}  // namespace

DecodedCharacter DecodeUtf8(std::string_view text)
{
    constexpr DecodedCharacter kMalformed = {.character = U'?', .length = 1, .valid = false};
    // The smallest character of each length; for less a shorter sequence would do.
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text.front());
    const auto ones = static_cast<std::size_t>(std::countl_one(lead));
    const std::size_t length = ones == 0 ? 1 : ones;
    if (ones == 1 || length >= kSmallest.size() || length > text.size()) {
        return kMalformed;
    }
    char32_t character = lead & (0x7FU >> ones);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            return kMalformed;
        }
        character = (character << 6U) | (next & 0x3FU);
    }
    if (character < kSmallest[length] || !IsScalarValue(character)) {
        return kMalformed;
    }
    return {.character = character, .length = length, .valid = true};
}

void AppendUtf8(std::string& text, char32_t character)
{
    if (!IsScalarValue(character)) {
        text += '?';
    } else if (character < 0x80) {
        text += static_cast<char>(character);
    } else {
        const unsigned tails = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
        // One more leading bit than there are tails, of six bits each.
        text += static_cast<char>(0xF80U >> tails | character >> 6U * tails);
        for (unsigned tail = tails; tail-- > 0;) {
            text += static_cast<char>(0x80U | (character >> 6U * tail & 0x3FU));
        }
    }
}

std::string FromCodePage(std::string_view bytes)
{
    const std::size_t ascii = AsciiLength(bytes);
    std::string text(bytes.substr(0, ascii));
    for (const char c : bytes.substr(ascii)) {
        const auto byte = static_cast<unsigned char>(c);
        const bool special = byte >= 0x80 && byte < 0xA0;
        AppendUtf8(text, special ? kHighControls[byte - 0x80U] : static_cast<char32_t>(byte));
    }
    return text;
}

std::string ToCodePage(std::string_view utf8)
{
    const std::size_t ascii = AsciiLength(utf8);
    std::string bytes(utf8.substr(0, ascii));
    utf8.remove_prefix(ascii);
    while (!utf8.empty()) {
        const DecodedCharacter next = DecodeUtf8(utf8);
        bytes += next.valid ? CodePageByte(next.character) : '?';
        utf8.remove_prefix(next.length);
    }
    return bytes;
}

bool IsUtf8(std::string_view bytes)
{
    for (bytes.remove_prefix(AsciiLength(bytes)); !bytes.empty();
         bytes.remove_prefix(AsciiLength(bytes))) {
        const DecodedCharacter next = DecodeUtf8(bytes);
        if (!next.valid) {
            return false;
        }
        bytes.remove_prefix(next.length);
    }
    return true;
}

}  // namespace base
