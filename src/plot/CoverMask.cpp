#include "plot/CoverMask.h"

#include <algorithm>
#include <bit>

namespace plot {

namespace {

constexpr std::size_t kBits = 64;
constexpr std::uint64_t kAll = ~std::uint64_t{0};

}  // namespace

void CoverMask::Reset(SurfaceSize picture)
{
    picture_ = {.width = std::max(picture.width, 0), .height = std::max(picture.height, 0)};
    wordsPerRow_ = (static_cast<std::size_t>(picture_.width) + kBits - 1) / kBits;
    taken_.assign(wordsPerRow_ * static_cast<std::size_t>(picture_.height), 0);
}

CoverMask::Span CoverMask::Clip(const PixelBox& box) const
{
    const int left = std::max(box.left, 0);
    const int top = std::max(box.top, 0);
    const int right = std::min(box.right, picture_.width);
    const int bottom = std::min(box.bottom, picture_.height);
    if (left >= right || top >= bottom) {
        return {};
    }
    const auto first = static_cast<std::size_t>(left);
    const auto last = static_cast<std::size_t>(right) - 1;
    Span span{
        .empty = false,
        .firstRow = static_cast<std::size_t>(top),
        .endRow = static_cast<std::size_t>(bottom),
        .firstWord = first / kBits,
        .lastWord = last / kBits,
        .firstMask = kAll << (first % kBits),
        .lastMask = kAll >> (kBits - 1 - last % kBits),
    };
    if (span.firstWord == span.lastWord) {
        span.firstMask &= span.lastMask;
        span.lastMask = span.firstMask;
    }
    return span;
}

PixelBox CoverMask::FreePart(const PixelBox& box) const
{
    const Span span = Clip(box);
    if (span.empty) {
        return {};
    }
    std::size_t first = SIZE_MAX;  // bits from the left of the picture
    std::size_t end = 0;
    std::size_t firstRow = 0;
    std::size_t endRow = 0;
    for (std::size_t row = span.firstRow; row < span.endRow; ++row) {
        const Word* const words = taken_.data() + row * wordsPerRow_;
        bool rowHasFree = false;
        for (std::size_t word = span.firstWord; word <= span.lastWord; ++word) {
            Word free = ~words[word];
            free &= word == span.firstWord ? span.firstMask : kAll;
            free &= word == span.lastWord ? span.lastMask : kAll;
            if (free != 0) {
                rowHasFree = true;
                first = std::min(first,
                                 word * kBits + static_cast<std::size_t>(std::countr_zero(free)));
                end = std::max(end, (word + 1) * kBits
                                        - static_cast<std::size_t>(std::countl_zero(free)));
            }
        }
        if (rowHasFree) {
            firstRow = endRow == 0 ? row : firstRow;
            endRow = row + 1;
        }
    }
    if (endRow == 0) {
        return {};
    }
    return {.left = static_cast<int>(first),
            .top = static_cast<int>(firstRow),
            .right = static_cast<int>(end),
            .bottom = static_cast<int>(endRow)};
}

void CoverMask::Cover(const PixelBox& box)
{
    const Span span = Clip(box);
    if (span.empty) {
        return;
    }
    for (std::size_t row = span.firstRow; row < span.endRow; ++row) {
        Word* const words = taken_.data() + row * wordsPerRow_;
        words[span.firstWord] |= span.firstMask;
        words[span.lastWord] |= span.lastMask;
        for (std::size_t word = span.firstWord + 1; word < span.lastWord; ++word) {
            words[word] = kAll;
        }
    }
}

}  // namespace plot
