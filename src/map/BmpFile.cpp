#include "map/BmpFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <span>

namespace map {

namespace {

struct BmpHeader {
    std::uint32_t offset = 0;      // of the rows, from the front of the file
    std::uint32_t headerSize = 0;  // behind the first 14 bytes
    std::int64_t width = 0;
    std::int64_t rows = 0;
    std::uint32_t bits = 0;         // a pixel
    std::uint32_t compression = 0;  // 1: runs of bytes, 2: runs of half bytes
    std::uint64_t colours = 0;      // length of the table behind the header
};

std::uint32_t Little(std::span<const Byte> bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        value = value * 256 + bytes[i];
    }
    return value;
}

// Colours in the table of a picture of so many bits; 0 named means all that there can be.
std::uint64_t ColourCount(std::uint32_t bits, std::uint32_t named)
{
    constexpr std::uint32_t kMostBits = 8;
    if (bits > kMostBits) {
        return 0;
    }
    const std::uint32_t most = 1U << bits;
    return named == 0 ? most : std::min(named, most);
}

std::optional<BmpHeader> TakeBmpHeader(ByteStream& bytes)
{
    constexpr std::uint32_t kOldSize = 12;
    constexpr std::uint32_t kSize = 40;
    std::array<Byte, 16> first = {};
    if (!bytes.Take(first)) {
        return std::nullopt;
    }
    BmpHeader header;
    header.offset = Little(std::span(first).subspan(8, 4));
    header.headerSize = Little(std::span(first).subspan(12, 4));
    if (header.headerSize == kOldSize) {
        std::array<Byte, kOldSize - 4> old = {};
        if (!bytes.Take(old)) {
            return std::nullopt;
        }
        header.width = Little(std::span(old).subspan(0, 2));
        header.rows = Little(std::span(old).subspan(2, 2));
        header.bits = Little(std::span(old).subspan(6, 2));
        header.colours = ColourCount(header.bits, 0) * 3;
        return header;
    }
    std::array<Byte, kSize - 4> usual = {};
    if (header.headerSize < kSize || !bytes.Take(usual)) {
        return std::nullopt;
    }
    const auto number = [&usual](std::size_t at) {
        return static_cast<std::int32_t>(Little(std::span(usual).subspan(at, 4)));
    };
    header.width = number(0);
    header.rows = std::abs(std::int64_t{number(4)});
    header.bits = Little(std::span(usual).subspan(10, 2));
    header.compression = Little(std::span(usual).subspan(12, 4));
    header.colours = ColourCount(header.bits, Little(std::span(usual).subspan(28, 4))) * 4;
    return header;
}

// Runs of pixels from row to row, up to the mark behind the last.
class BmpRuns {
public:
    BmpRuns(ByteStream& bytes, const BmpHeader& header) : bytes_(bytes), header_(header) {}

    bool AreWhole()
    {
        while (!ended_ && row_ < header_.rows) {
            std::array<Byte, 2> pair = {};
            if (!bytes_.Take(pair) || (pair[0] == 0 && !TakeEscape(pair[1]))) {
                break;
            }
            column_ += pair[0];
        }
        return ended_ || row_ >= header_.rows
               || (row_ + 1 == header_.rows && column_ >= header_.width);
    }

private:
    bool TakeEscape(Byte code)
    {
        std::array<Byte, 2> move = {};
        switch (code) {
        case 0:
            ++row_;
            column_ = 0;
            return true;
        case 1: ended_ = true; return true;
        case 2:
            if (!bytes_.Take(move)) {
                return false;
            }
            column_ += move[0];
            row_ += move[1];
            return true;
        default: break;
        }
        // So many pixels as they are, in whole pairs of bytes.
        const std::uint64_t length = header_.compression == 2 ? (code + 1U) / 2 : code;
        if (!bytes_.Skip((length + 1) / 2 * 2)) {
            return false;
        }
        column_ += code;
        return true;
    }

    ByteStream& bytes_;
    BmpHeader header_;
    std::int64_t row_ = 0;
    std::int64_t column_ = 0;
    bool ended_ = false;
};

}  // namespace

bool IsWholeBmp(ByteStream& bytes, std::uint64_t fileSize)
{
    constexpr std::uint64_t kFileHeader = 14;
    const std::optional<BmpHeader> header = TakeBmpHeader(bytes);
    if (!header || header->width < 0) {
        return false;
    }
    const std::uint64_t headers = kFileHeader + header->headerSize + header->colours;
    const std::uint64_t begin = std::max<std::uint64_t>(header->offset, headers);
    if (header->compression == 1 || header->compression == 2) {
        constexpr std::uint64_t kTaken = 40;
        return bytes.Skip(begin - kFileHeader - kTaken) && BmpRuns(bytes, *header).AreWhole();
    }
    // Below 2 to the power of 31 each, and 16 bits: no product leaves 64 bits.
    const std::uint64_t row =
        (static_cast<std::uint64_t>(header->width) * header->bits + 31) / 32 * 4;
    return begin <= fileSize
           && (row == 0 || (fileSize - begin) / row >= static_cast<std::uint64_t>(header->rows));
}

}  // namespace map
