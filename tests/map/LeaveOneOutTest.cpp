#include "map/LeaveOneOut.h"

#include <gtest/gtest.h>

namespace map {
namespace {

// A plain map with one point that lies 10 pixels beside its place.
ReferenceTable WithOneWrong()
{
    ReferenceTable table;
    const double wrong = 10.0;
    table.Replace({{0, 0, 10, 49},
                   {1000, 0, 11, 49},
                   {0, 1000, 10, 48},
                   {1000, 1000, 11, 48},
                   {500 + wrong, 500, 10.5, 48.5}},
                  5);
    return table;
}

TEST(MissedBy, AWronglyPlacedPointStandsOut)
{
    const ReferenceTable table = WithOneWrong();
    ASSERT_TRUE(MissedBy(table, 4).has_value());
    EXPECT_NEAR(*MissedBy(table, 4), 10.0, 1e-6);
}

TEST(MissedBy, NothingWhereTheOthersDetermineNoPosition)
{
    ReferenceTable table;
    table.Replace({{100, 100, 10.1, 48.9}, {900, 100, 10.9, 48.9}, {500, 900, 10.5, 48.1}}, 3);
    EXPECT_FALSE(MissedBy(table, 0).has_value()) << "two others";
    table.Replace({{100, 100, 10.1, 48.9},
                   {200, 200, 10.2, 48.8},
                   {300, 300, 10.3, 48.7},
                   {500, 900, 10.5, 48.1}},
                  4);
    EXPECT_FALSE(MissedBy(table, 3).has_value()) << "three others in one line";
    EXPECT_TRUE(MissedBy(table, 0).has_value());
}

TEST(MissedBy, APointAtTheCornerOfTheImageHasAFigure)
{
    ReferenceTable table;
    table.Replace(
        {{0, 0, 11.5, 48.25}, {0, 200, 11.5, 48.0}, {300, 0, 12.0, 48.25}, {300, 200, 12.0, 48.0}},
        4);
    ASSERT_TRUE(MissedBy(table, 0).has_value()) << "0/0 is a pixel";
    EXPECT_NEAR(*MissedBy(table, 0), 0.0, 1e-6);
}

}  // namespace
}  // namespace map
