#include "map/blend/MapMath.h"

#include <gtest/gtest.h>

namespace map {
namespace {

TEST(SafeDivide, TakesAVanishingDivisorForATinyOne)
{
    EXPECT_EQ(SafeDivide(6.0, 2.0), 3.0);
    EXPECT_EQ(SafeDivide(1.0, 0.0), 1.0 / 1e-40);
    EXPECT_EQ(SafeDivide(-2.0, -0.0), -2.0 / 1e-40);
    EXPECT_EQ(SafeDivide(0.0, 0.0), 0.0);
    EXPECT_EQ(SafeDivide(1.0, 1e-50), 1.0 / 1e-50) << "only exactly 0 is replaced";
}

TEST(InverseSquare, GivesACoincidentPointAHugeWeight)
{
    EXPECT_EQ(InverseSquare(3.0, 4.0), 0.04);
    EXPECT_EQ(InverseSquare(0.0, 0.0), 1.0 / 1e-40);
}

TEST(Hypot, IsTheLengthOfTheDifference)
{
    EXPECT_EQ(Hypot(3.0, -4.0), 5.0);
    EXPECT_EQ(Hypot(0.0, 0.0), 0.0);
}

TEST(Abs, DropsTheSign)
{
    EXPECT_EQ(Abs(-2.5), 2.5);
    EXPECT_EQ(Abs(2.5), 2.5);
    EXPECT_EQ(Abs(0.0), 0.0);
}

TEST(TriangleAreaSquared, IsHeronsFormulaWithoutTheRoot)
{
    EXPECT_DOUBLE_EQ(TriangleAreaSquared(0.0, 0.0, 3.0, 0.0, 0.0, 4.0), 36.0);
    EXPECT_DOUBLE_EQ(TriangleAreaSquared(0.0, 4.0, 0.0, 0.0, 3.0, 0.0), 36.0);
    EXPECT_EQ(TriangleAreaSquared(1.0, 2.0, 1.0, 2.0, 5.0, 5.0), 0.0);
}

TEST(UsableAreaSquared, IsZeroBelowATrillionthOfTheLongestSide)
{
    // Base 1, height h: h² / 4 against 1e-12.
    EXPECT_EQ(UsableAreaSquared(0.0, 0.0, 1.0, 0.0, 0.5, 1.9e-6), 0.0);
    EXPECT_GT(UsableAreaSquared(0.0, 0.0, 1.0, 0.0, 0.5, 2.1e-6), 0.0);
    // The same triangles a thousand times as large.
    EXPECT_EQ(UsableAreaSquared(0.0, 0.0, 1e3, 0.0, 500.0, 1.9e-3), 0.0);
    EXPECT_GT(UsableAreaSquared(0.0, 0.0, 1e3, 0.0, 500.0, 2.1e-3), 0.0);
    // Three points of a printed grid line, collinear but for rounding.
    EXPECT_EQ(UsableAreaSquared(8.1, 48.1, 8.2, 48.2, 8.3, 48.3), 0.0);
    EXPECT_EQ(UsableAreaSquared(7.0, 7.0, 7.0, 7.0, 7.0, 7.0), 0.0);
}

}  // namespace
}  // namespace map
