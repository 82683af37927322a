// Windows-1252, the code page of the texts in the files, to and from UTF-8. The table is the one
// that the Unicode Consortium publishes for it; the bytes that it leaves undefined are read as the
// WHATWG Encoding Standard does. No conversion fails.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace base {

// Every byte has a character: the five that the code page leaves undefined become the control
// characters of the same number.
std::string FromCodePage(std::string_view bytes);

// Each character that the code page lacks, and each byte sequence that is not UTF-8, becomes "?".
std::string ToCodePage(std::string_view utf8);

// True when `bytes` is well-formed UTF-8 (no surrogates, no overlong forms, up to U+10FFFF).
bool IsUtf8(std::string_view bytes);

// The character as UTF-8, appended to `text`; one that Unicode does not have becomes "?".
void AppendUtf8(std::string& text, char32_t character);

// One character read from the front of UTF-8 text and the bytes it took. A malformed front gives
// length 1 and `valid` false. `text` must not be empty.
struct DecodedCharacter {
    char32_t character;
    std::size_t length;
    bool valid;
};
DecodedCharacter DecodeUtf8(std::string_view text);

}  // namespace base
