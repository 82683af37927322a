#include "plot/PolarScale.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace plot {
namespace {

std::vector<std::string> Labels(int zoomLevel)
{
    std::vector<std::string> labels;
    for (const RangeRing& ring :
         MakePolarScale({800, 600}, zoomLevel, base::NumberFormat()).rings) {
        labels.push_back(ring.label);
    }
    return labels;
}

TEST(MakePolarScale, LabelsTheRingsOfTheStartLevelInKilometres)
{
    EXPECT_EQ(Labels(14), (std::vector<std::string>{"2 km", "4 km", "6 km", "8 km", "10 km",
                                                    "12 km", "14 km", "16 km", "18 km"}));
}

TEST(MakePolarScale, LabelsTheRingsOfTheNearestLevelInMetres)
{
    const std::vector<std::string> labels = Labels(1);
    ASSERT_EQ(labels.size(), 18U);
    EXPECT_EQ(labels.front(), "1 m");
    EXPECT_EQ(labels[1], "2 m");
    EXPECT_EQ(labels.back(), "18 m");
}

TEST(MakePolarScale, ChangesTheUnitOfAllLabelsAtOnce)
{
    // 0.5 km apart: all metres, 4.5 km and 5 km included; 1 km apart: all kilometres.
    for (const std::string& label : Labels(11)) {
        EXPECT_TRUE(label.ends_with("00 m")) << label;
    }
    EXPECT_EQ(Labels(11).back(), "5000 m");
    for (const std::string& label : Labels(12)) {
        EXPECT_TRUE(label.ends_with(" km")) << label;
    }
}

TEST(MakePolarScale, PutsTheRingOfTheViewRangeOnTheUpperEdge)
{
    const PolarScale scale = MakePolarScale({1000, 600}, 14, base::NumberFormat());
    EXPECT_EQ(scale.centre, (SurfacePoint{500, 300}));
    EXPECT_EQ(scale.rings[4].radius, 300);  // 10 km
    EXPECT_EQ(scale.rings[0].radius, 60);
    EXPECT_EQ(scale.rings[8].radius, 540);
}

TEST(MakePolarScale, RoundsRadiiToTheNearestAndHalvesToTheEven)
{
    // 0.05 km of 0.3 km on a half height of 15: 2.5, then 5, 7.5.
    const PolarScale scale = MakePolarScale({40, 30}, 6, base::NumberFormat());
    EXPECT_EQ(scale.rings[0].radius, 2);
    EXPECT_EQ(scale.rings[1].radius, 5);
    EXPECT_EQ(scale.rings[2].radius, 8);
}

TEST(MakePolarScale, DrawsARadialEveryTenDegreesThroughTheCentre)
{
    const PolarScale scale = MakePolarScale({800, 600}, 14, base::NumberFormat());
    ASSERT_EQ(scale.radials.size(), 19U);
    EXPECT_EQ(scale.radials[0], (Line{{400, 600}, {400, 0}}));  // both lines at 0 degrees
    EXPECT_EQ(scale.radials[1], scale.radials[0]);
    // 300 tan 10 = 52.898, 300 tan 80 = 1701.38: beyond the sides of the surface
    EXPECT_EQ(scale.radials[2], (Line{{347, 600}, {453, 0}}));
    EXPECT_EQ(scale.radials[3], (Line{{453, 600}, {347, 0}}));
    EXPECT_EQ(scale.radials[16], (Line{{-1301, 600}, {2101, 0}}));
    EXPECT_EQ(scale.radials[17], (Line{{2101, 600}, {-1301, 0}}));
    EXPECT_EQ(scale.radials[18], (Line{{0, 300}, {800, 300}}));
}

}  // namespace
}  // namespace plot
