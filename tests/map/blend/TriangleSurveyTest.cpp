#include "map/blend/TriangleSurvey.h"

#include <vector>

#include <gtest/gtest.h>

namespace map {
namespace {

TEST(SurveyTriangles, CountsTheUsableOnes)
{
    const PlanePoint points[] = {{0.0, 0.0}, {1.0, 0.0}, {2.0, 0.0}, {0.0, 1.0}};
    const TriangleSurvey survey = SurveyTriangles(points);
    EXPECT_EQ(survey.usable, 3U) << "three of the four lie in a row";
    EXPECT_EQ(survey.used, std::vector<bool>(4, true));
    EXPECT_TRUE(survey.collinear.empty()) << "no area at all";
}

TEST(SurveyTriangles, ListsCollinearTrianglesWithAnArea)
{
    const PlanePoint points[] = {{0.0, 0.0}, {1.0, 1e-7}, {2.0, 0.0}, {0.0, 1.0}};
    const TriangleSurvey survey = SurveyTriangles(points);
    EXPECT_EQ(survey.usable, 3U);
    ASSERT_EQ(survey.collinear.size(), 1U);
    EXPECT_EQ(survey.collinear[0].i, 0);
    EXPECT_EQ(survey.collinear[0].k, 2);
}

TEST(SurveyTriangles, UsesNoPointThatIsCollinearWithAllOthers)
{
    // So far away that every triangle with it is too thin.
    const PlanePoint points[] = {{0.0, 0.0}, {1.0, 0.0}, {0.0, 1.0}, {1e8, 3e7}};
    const TriangleSurvey survey = SurveyTriangles(points);
    EXPECT_EQ(survey.usable, 1U);
    EXPECT_EQ(survey.used, (std::vector<bool>{true, true, true, false}));
    EXPECT_TRUE(survey.collinear.empty());
}

TEST(SurveyTriangles, SeesALineOfAnyNumberOfPoints)
{
    std::vector<PlanePoint> points;
    for (int i = 0; i < 1000; ++i) {
        points.push_back({0.1 * i, 0.3 * i});
        const TriangleSurvey survey = SurveyTriangles(points);
        if (i % 99 == 0) {
            EXPECT_EQ(survey.usable, 0U) << i;
        }
        i += i > static_cast<int>(kExactPoints) ? 50 : 8;
    }
    points.push_back({0.0, 5.0});
    EXPECT_GT(SurveyTriangles(points).usable, 0U);
}

}  // namespace
}  // namespace map
