// Which pixels of a picture are already taken by what is drawn later.
//
// Markers are tested from the last drawn to the first: one whose pixels are all taken by later
// markers leaves no trace in the picture and need not be drawn.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "plot/ViewLayout.h"

namespace plot {

// Pixels from `left`, `top` up to but without `right`, `bottom`; may reach beyond the picture.
struct PixelBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool Empty() const { return left >= right || top >= bottom; }

    bool operator==(const PixelBox&) const = default;
};

class CoverMask {
public:
    // All pixels free.
    void Reset(SurfaceSize picture);

    // The smallest box around the pixels of `box` that are in the picture and free; an empty one
    // when there are none.
    PixelBox FreePart(const PixelBox& box) const;

    // Takes the pixels of the box.
    void Cover(const PixelBox& box);

private:
    using Word = std::uint64_t;

    // The box within the picture as rows and words.
    struct Span {
        bool empty = true;
        std::size_t firstRow = 0;
        std::size_t endRow = 0;
        std::size_t firstWord = 0;
        std::size_t lastWord = 0;
        Word firstMask = 0;  // the box's pixels in the first word
        Word lastMask = 0;   // and in the last one, which may be the first
    };
    Span Clip(const PixelBox& box) const;

    SurfaceSize picture_;
    std::size_t wordsPerRow_ = 0;
    std::vector<Word> taken_;
};

}  // namespace plot
