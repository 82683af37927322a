#include "plot/PlotPosition.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "base/Rounding.h"
#include "geo/Distance.h"
#include "plot/ZoomLevels.h"

namespace plot {
namespace {

constexpr geo::GeoPosition kHome{.latitude = 48.0, .longitude = 11.0};

// A position `kilometres` due north of the home position.
geo::GeoPosition North(double kilometres)
{
    return {.latitude = kHome.latitude + kilometres / geo::kEarthRadius * 180.0 / std::numbers::pi,
            .longitude = kHome.longitude};
}

SurfacePoint PolarPlot(geo::GeoPosition position, SurfaceSize surface, int zoomLevel)
{
    const double scale = PolarUnitsPerKilometre(surface, ComputeScale(zoomLevel).ViewRange());
    const map::Pixel offset = PolarOffset(PolarFrom(kHome, position), scale);
    const std::optional<SurfacePoint> whole = WholePosition(offset.x, offset.y);
    EXPECT_TRUE(whole.has_value());
    return AtCentre(surface, whole.value_or(SurfacePoint{}));
}

TEST(PolarPlot, PutsStation1InTheCentre)
{
    EXPECT_EQ(PolarPlot(kHome, {800, 600}, 14), (SurfacePoint{400, 300}));
    EXPECT_EQ(PolarPlot(kHome, {801, 601}, 1), (SurfacePoint{400, 300}));  // 400.5, 300.5: even
    EXPECT_EQ(PolarPlot(kHome, {803, 603}, 33), (SurfacePoint{402, 302}));
}

TEST(PolarPlot, PutsTenKilometresNorthOnTheUpperEdgeAtTheStartLevel)
{
    EXPECT_EQ(PolarPlot(North(10.0), {800, 600}, 14), (SurfacePoint{400, 0}));
    EXPECT_EQ(PolarPlot(North(-10.0), {800, 600}, 14), (SurfacePoint{400, 600}));
}

TEST(PolarPlot, HasNorthUpAndEastRight)
{
    const struct {
        const char* direction;
        geo::GeoPosition position;
        int x;
        int y;
    } cases[] = {
        {"north", {48.01, 11.0}, 0, -1},
        {"south", {47.99, 11.0}, 0, 1},
        {"east", {48.0, 11.01}, 1, 0},
        {"west", {48.0, 10.99}, -1, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.direction);
        const SurfacePoint point = PolarPlot(c.position, {800, 600}, 14);
        const int dx = point.x - 400;
        const int dy = point.y - 300;
        EXPECT_EQ(dx == 0 ? 0 : dx / std::abs(dx), c.x);
        EXPECT_EQ(dy == 0 ? 0 : dy / std::abs(dy), c.y);
    }
}

TEST(PolarPlot, FollowsDistanceAndBearing)
{
    const geo::GeoPosition far{.latitude = 50.5, .longitude = 7.25};
    const geo::DistanceAndBearing seen = geo::DistanceAndRawBearing(kHome, far);
    const double units = 300.0 / 500.0;  // level 24 shows 500 km
    const double angle = seen.rawBearing * 3.141592654 / 180.0;
    const SurfacePoint point = PolarPlot(far, {800, 600}, 24);
    EXPECT_EQ(point.x, 400 + std::lround(seen.distance * units * std::cos(angle)));
    EXPECT_EQ(point.y, 300 + std::lround(seen.distance * units * std::sin(angle)));
}

TEST(WholePosition, RoundsHalvesToTheEvenNeighbour)
{
    EXPECT_EQ(WholePosition(0.5, 1.5), (SurfacePoint{0, 2}));
    EXPECT_EQ(WholePosition(-0.5, -1.5), (SurfacePoint{0, -2}));
    EXPECT_EQ(WholePosition(2.4999, -2.5001), (SurfacePoint{2, -3}));
}

TEST(WholePosition, RoundsLikeEverythingElse)
{
    for (int eighths = -800; eighths <= 800; ++eighths) {
        for (const double offset : {0.0, 1e-12, -1e-12}) {
            const double value = eighths / 8.0 + offset;
            const int expected = static_cast<int>(base::RoundHalfEven(value));
            EXPECT_EQ(WholePosition(value, -value), (SurfacePoint{expected, -expected})) << value;
        }
    }
}

TEST(WholePosition, LeavesOutWhatIsFarAway)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(WholePosition(64999.0, -64999.0), (SurfacePoint{64999, -64999}));
    for (const double far : {65000.0, -65000.0, 64999.6, 1e300, -1e300, infinity, -infinity, nan}) {
        SCOPED_TRACE(far);
        EXPECT_FALSE(WholePosition(far, 0.0).has_value());
        EXPECT_FALSE(WholePosition(0.0, far).has_value());
    }
}

TEST(InterpolatedPixel, RunsFromTheUpperLeftCornerToTheLowerRight)
{
    const map::EdgeCoordinates edges{.left = 10.0, .right = 14.0, .upper = 50.0, .lower = 48.0};
    const map::ImageSize image{2000, 1000};
    EXPECT_EQ(InterpolatedPixel(edges, image, {50.0, 10.0}), (map::Pixel{0.0, 0.0}));
    EXPECT_EQ(InterpolatedPixel(edges, image, {48.0, 14.0}), (map::Pixel{2000.0, 1000.0}));
    EXPECT_EQ(InterpolatedPixel(edges, image, {49.5, 11.0}), (map::Pixel{500.0, 250.0}));
    EXPECT_EQ(InterpolatedPixel(edges, image, {51.0, 9.0}), (map::Pixel{-500.0, -500.0}));
}

TEST(InterpolatedPosition, IsTheInverse)
{
    const map::EdgeCoordinates edges{.left = 10.0, .right = 14.0, .upper = 50.0, .lower = 48.0};
    const geo::GeoPosition position = InterpolatedPosition(edges, {2000, 1000}, {500.0, 250.0});
    EXPECT_DOUBLE_EQ(position.latitude, 49.5);
    EXPECT_DOUBLE_EQ(position.longitude, 11.0);
}

TEST(InterpolatedPixel, EqualEdgesPlotNothing)
{
    const map::ImageSize image{2000, 1000};
    const struct {
        const char* what;
        map::EdgeCoordinates edges;
    } cases[] = {
        {"no height", {.left = 10.0, .right = 14.0, .upper = 48.0, .lower = 48.0}},
        {"no width", {.left = 11.0, .right = 11.0, .upper = 50.0, .lower = 48.0}},
        {"neither", {.left = 11.0, .right = 11.0, .upper = 48.0, .lower = 48.0}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        for (const geo::GeoPosition position :
             {geo::GeoPosition{48.0, 11.0}, geo::GeoPosition{49.0, 12.0}}) {
            const map::Pixel pixel = InterpolatedPixel(c.edges, image, position);
            EXPECT_FALSE(WholePosition(pixel.x, pixel.y).has_value());
        }
    }
}

}  // namespace
}  // namespace plot
