#include "plot/CoverMask.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace plot {
namespace {

TEST(CoverMask, BoxIsCoveredByThePiecesLaidOverIt)
{
    CoverMask mask;
    mask.Reset({200, 50});
    const PixelBox box{10, 10, 150, 20};
    EXPECT_EQ(mask.FreePart(box), box);
    mask.Cover({0, 0, 100, 30});
    EXPECT_EQ(mask.FreePart(box), (PixelBox{100, 10, 150, 20}));
    mask.Cover({100, 10, 149, 20});
    EXPECT_EQ(mask.FreePart(box), (PixelBox{149, 10, 150, 20}));  // one column is left
    mask.Cover({149, 10, 150, 19});
    EXPECT_EQ(mask.FreePart(box), (PixelBox{149, 19, 150, 20}));  // one pixel is left
    mask.Cover({149, 19, 150, 20});
    EXPECT_TRUE(mask.FreePart(box).Empty());
}

TEST(CoverMask, WhatLiesOutsideThePictureCountsAsCovered)
{
    CoverMask mask;
    mask.Reset({100, 50});
    EXPECT_TRUE(mask.FreePart({-20, 0, 0, 10}).Empty());
    EXPECT_TRUE(mask.FreePart({100, 0, 120, 10}).Empty());
    EXPECT_TRUE(mask.FreePart({0, -10, 10, 0}).Empty());
    EXPECT_TRUE(mask.FreePart({0, 50, 10, 60}).Empty());
    EXPECT_EQ(mask.FreePart({-20, -20, 1, 1}), (PixelBox{0, 0, 1, 1}));  // the corner
    mask.Cover({-64990, -5, 1, 1});
    EXPECT_TRUE(mask.FreePart({-20, -20, 1, 1}).Empty());
}

TEST(CoverMask, EmptyPictureHoldsNothing)
{
    CoverMask mask;
    mask.Reset({0, 0});
    mask.Cover({0, 0, 10, 10});
    EXPECT_TRUE(mask.FreePart({0, 0, 10, 10}).Empty());
}

TEST(CoverMask, AgreesWithCountingPixels)
{
    constexpr SurfaceSize kPicture{150, 40};
    std::mt19937 random(20);  // NOLINT: the same boxes in every run
    std::uniform_int_distribution<int> x(-20, 160);
    std::uniform_int_distribution<int> y(-10, 45);
    std::uniform_int_distribution<int> width(0, 140);
    CoverMask mask;
    mask.Reset(kPicture);
    std::vector<bool> taken(static_cast<std::size_t>(kPicture.width * kPicture.height));
    int coveredBoxes = 0;
    for (int i = 0; i < 3000; ++i) {
        if (i % 300 == 0) {
            mask.Reset(kPicture);
            taken.assign(taken.size(), false);
        }
        const int left = x(random);
        const int top = y(random);
        const PixelBox box{left, top, left + width(random) % (i % 2 == 0 ? 140 : 9),
                           top + 1 + i % 5};
        PixelBox free{kPicture.width, kPicture.height, 0, 0};
        for (int row = std::max(box.top, 0); row < std::min(box.bottom, kPicture.height); ++row) {
            for (int c = std::max(box.left, 0); c < std::min(box.right, kPicture.width); ++c) {
                const auto pixel =
                    static_cast<std::size_t>(row) * static_cast<std::size_t>(kPicture.width)
                    + static_cast<std::size_t>(c);
                if (!taken[pixel]) {
                    free = {std::min(free.left, c), std::min(free.top, row),
                            std::max(free.right, c + 1), std::max(free.bottom, row + 1)};
                }
                taken[pixel] = true;
            }
        }
        ASSERT_EQ(mask.FreePart(box), free.Empty() ? PixelBox{} : free) << "box " << i;
        mask.Cover(box);
        ASSERT_TRUE(mask.FreePart(box).Empty());
        coveredBoxes += free.Empty() ? 1 : 0;
    }
    EXPECT_GT(coveredBoxes, 300);
    EXPECT_LT(coveredBoxes, 2700);
}

}  // namespace
}  // namespace plot
