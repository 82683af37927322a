#include "plot/StationPlot.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace plot {
namespace {

using stations::StationRecord;

StationRecord At(double latitude, double longitude)
{
    StationRecord record = stations::EmptyRecord();
    record.SetPosition({.latitude = latitude, .longitude = longitude});
    return record;
}

class ImagePlotTest : public testing::Test {
protected:
    std::span<const map::Pixel> Plot()
    {
        computed = 0;
        return plot.Image(records, model, [this](auto positions, auto pixels) {
            ASSERT_EQ(positions.size(), pixels.size());
            computed += positions.size();
            for (std::size_t i = 0; i < positions.size(); ++i) {
                pixels[i] = {positions[i].longitude * 10.0, positions[i].latitude * 10.0};
            }
        });
    }

    std::vector<StationRecord> records = {At(48.0, 11.0), At(49.0, 12.0), At(50.0, 13.0)};
    ImageModel model;
    StationPlot plot;
    std::size_t computed = 0;
};

TEST_F(ImagePlotTest, ComputesNothingWhenNothingChanged)
{
    EXPECT_EQ(Plot()[2], (map::Pixel{130.0, 500.0}));
    EXPECT_EQ(computed, 3U);
    EXPECT_EQ(Plot()[2], (map::Pixel{130.0, 500.0}));
    EXPECT_EQ(computed, 0U);
}

TEST_F(ImagePlotTest, ComputesTheRecordsThatChanged)
{
    Plot();
    records[1] = At(51.0, 14.0);
    records.push_back(At(52.0, 15.0));
    const auto pixels = Plot();
    EXPECT_EQ(computed, 2U);
    ASSERT_EQ(pixels.size(), 4U);
    EXPECT_EQ(pixels[1], (map::Pixel{140.0, 510.0}));
    EXPECT_EQ(pixels[3], (map::Pixel{150.0, 520.0}));
    records.erase(records.begin());
    EXPECT_EQ(Plot()[0], (map::Pixel{140.0, 510.0}));
}

TEST_F(ImagePlotTest, ComputesEverythingWhenTheModelChanged)
{
    Plot();
    model.edges.upper = 1.0;
    Plot();
    EXPECT_EQ(computed, 3U);
    model.image.width = 1;
    Plot();
    EXPECT_EQ(computed, 3U);
    model.references.emplace();
    Plot();
    EXPECT_EQ(computed, 3U);
    model.references->push_back({.X = 1.0});
    Plot();
    EXPECT_EQ(computed, 3U);
    Plot();
    EXPECT_EQ(computed, 0U);
}

TEST_F(ImagePlotTest, ComputesEverythingAfterThePolarView)
{
    Plot();
    plot.Polar(records, {.latitude = 48.0, .longitude = 11.0});
    Plot();
    EXPECT_EQ(computed, 3U);
}

TEST_F(ImagePlotTest, PositionThatIsNoNumberIsComputedOnce)
{
    records[0] = At(std::numeric_limits<double>::quiet_NaN(), 11.0);
    Plot();
    Plot();
    EXPECT_EQ(computed, 0U);
}

TEST(PolarStationPlot, FollowsStation1AndTheRecords)
{
    StationPlot plot;
    std::vector<StationRecord> records = {At(48.0, 11.0), At(49.0, 12.0)};
    const geo::GeoPosition first{.latitude = 48.0, .longitude = 11.0};
    const geo::GeoPosition second{.latitude = 49.0, .longitude = 12.0};
    EXPECT_EQ(plot.Polar(records, first)[0].distance, 0.0);
    EXPECT_NE(plot.Polar(records, first)[1].distance, 0.0);
    EXPECT_EQ(plot.Polar(records, second)[1].distance, 0.0);
    EXPECT_NE(plot.Polar(records, second)[0].distance, 0.0);
    records[0] = At(49.0, 12.0);
    EXPECT_EQ(plot.Polar(records, second)[0].distance, 0.0);
    records.clear();
    EXPECT_TRUE(plot.Polar(records, second).empty());
}

}  // namespace
}  // namespace plot
