#include "map/PictureFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "map/BmpFile.h"
#include "map/ByteStream.h"

namespace map {

namespace {

constexpr Byte kJpegEnd = 0xD9;

// Whether a byte behind 0xFF begins a segment or is the end: not a byte of the picture, a restart
// or a filling.
bool IsMarker(Byte byte)
{
    const bool restart = byte >= 0xD0 && byte <= 0xD7;
    const bool alone = byte == 0x01 || byte == 0xD8;
    return byte != 0x00 && byte != 0xFF && !restart && !alone;
}

// Segment after segment, by their lengths: a small picture inside one has an end of its own.
bool IsWholeJpeg(ByteStream& bytes)
{
    while (bytes.SkipPast(0xFF)) {
        std::optional<Byte> marker = bytes.Next();
        while (marker == Byte{0xFF}) {
            marker = bytes.Next();
        }
        if (marker == kJpegEnd) {
            return true;
        }
        if (!marker || !IsMarker(*marker)) {
            continue;
        }
        std::array<Byte, 2> length = {};
        if (!bytes.Take(length)) {
            return false;
        }
        const int counted = length[0] * 256 + length[1];
        if (!bytes.Skip(static_cast<std::uint64_t>(std::max(counted - 2, 0)))) {
            return false;
        }
    }
    return false;
}

// Blocks of up to 255 bytes, the last one empty.
bool SkipGifBlocks(ByteStream& bytes)
{
    for (std::optional<Byte> length = bytes.Next(); length; length = bytes.Next()) {
        if (*length == 0) {
            return true;
        }
        if (!bytes.Skip(*length)) {
            return false;
        }
    }
    return false;
}

// The bytes of a colour table that `flags` announce.
std::uint64_t GifColours(Byte flags)
{
    return (flags & 0x80U) == 0 ? 0 : std::uint64_t{3} << ((flags & 7U) + 1U);
}

bool SkipGifImage(ByteStream& bytes)
{
    std::array<Byte, 9> header = {};
    return bytes.Take(header) && bytes.Skip(GifColours(header[8]) + 1) && SkipGifBlocks(bytes);
}

bool IsWholeGif(ByteStream& bytes)
{
    constexpr std::uint64_t kBehindSize = 2;
    constexpr std::uint64_t kUpToFlags = 8;
    std::array<Byte, 1> flags = {};
    if (!bytes.Skip(kUpToFlags) || !bytes.Take(flags)
        || !bytes.Skip(kBehindSize + GifColours(flags[0]))) {
        return false;
    }
    bool image = false;
    while (const std::optional<Byte> block = bytes.Next()) {
        switch (*block) {
        case 0x00: break;  // some programs end a block twice
        case ',':
            if (!SkipGifImage(bytes)) {
                return false;
            }
            image = true;
            break;
        case '!':
            if (!bytes.Skip(1) || !SkipGifBlocks(bytes)) {
                return false;
            }
            break;
        default: return image;  // the trailer, or what is no block behind the image
        }
    }
    return false;
}

}  // namespace

bool IsWholePicture(base::InputFile& file)
{
    if (file.Status() != base::FileStatus::Readable) {
        return false;
    }
    ByteStream bytes(file);
    std::array<Byte, 2> mark = {};
    if (!bytes.Take(mark)) {
        return true;
    }
    const std::string_view first(reinterpret_cast<const char*>(mark.data()), mark.size());
    if (first == "\xFF\xD8") {
        return IsWholeJpeg(bytes);
    }
    if (first == "GI") {
        return IsWholeGif(bytes);
    }
    if (first == "BM") {
        return IsWholeBmp(bytes, file.Size());
    }
    return first != "#d" || bytes.SkipPast('}');
}

}  // namespace map
