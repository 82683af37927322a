#include "ui/map/CoverMask.h"

#include <algorithm>

namespace ui {

namespace {

constexpr std::size_t kBits = 64;
constexpr std::uint64_t kAll = ~std::uint64_t{0};

}  // namespace

void CoverMask::Reset(Extent picture)
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

bool CoverMask::Covered(const PixelBox& box) const
{
    const Span span = Clip(box);
    if (span.empty) {
        return true;
    }
    for (std::size_t row = span.firstRow; row < span.endRow; ++row) {
        const Word* const words = taken_.data() + row * wordsPerRow_;
        Word free = span.firstMask & ~words[span.firstWord];
        free |= span.lastMask & ~words[span.lastWord];
        for (std::size_t word = span.firstWord + 1; word < span.lastWord; ++word) {
            free |= ~words[word];
        }
        if (free != 0) {
            return false;
        }
    }
    return true;
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

}  // namespace ui
