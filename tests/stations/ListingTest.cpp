#include "stations/Listing.h"

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "stations/Records.h"
#include "stations/TextImport.h"

namespace stations {
namespace {

const base::NumberFormat kPoint(".");
const base::NumberFormat kComma(",");

constexpr auto kSeconds = geo::DegreeMinuteMode::Seconds;
constexpr auto kHundredths = geo::DegreeMinuteMode::Hundredths;

std::vector<StationRecord> TwoStations()
{
    return {MakeRecord({"DL1ABC", "Anna", "K\xF6ln", "145.500", "mobil", "2007.03.04-05:06:07"},
                       {.latitude = 48.3125, .longitude = 11.625}),
            MakeRecord({"ZL1XYZ"}, {.latitude = -0.25, .longitude = -11.625})};
}

constexpr const char* kFirstTexts =
    "\tDL1ABC\tAnna\tK\u00f6ln\t145.500\tmobil\t2007.03.04-05:06:07\r\n";
constexpr const char* kSecondTexts = "\tZL1XYZ\t\t\t\t\t\r\n";

TEST(ListingText, WritesLatitudeAndLongitudeAsAngles)
{
    EXPECT_EQ(ListingText(TwoStations(), ListingMode::DegreeMinutes, kHundredths, kComma),
              std::string("  48.18.75\t  11.37.50") + kFirstTexts + "  -0.15.00\t -11.37.50"
                  + kSecondTexts);
    EXPECT_EQ(ListingText(TwoStations(), ListingMode::DegreeMinutes, kSeconds, kComma),
              std::string("  48.18'45\"\t  11.37'30\"") + kFirstTexts + "  -0.15'00\"\t -11.37'30\""
                  + kSecondTexts);
}

TEST(ListingText, WritesDegreesWithTheSeparatorOfTheScreen)
{
    EXPECT_EQ(ListingText(TwoStations(), ListingMode::Degrees, kSeconds, kPoint),
              std::string("48.31250000\t11.62500000") + kFirstTexts + "-0.25000000\t-11.62500000"
                  + kSecondTexts);
    EXPECT_EQ(ListingText(TwoStations(), ListingMode::Degrees, kSeconds, kComma),
              std::string("48,31250000\t11,62500000") + kFirstTexts + "-0,25000000\t-11,62500000"
                  + kSecondTexts);
}

TEST(ListingText, WritesZoneEastingAndNorthing)
{
    // On a central meridian the easting is exactly 500000.
    const std::vector<StationRecord> records = {
        MakeRecord({"A"}, {.latitude = 0.0, .longitude = 9.0}),
        MakeRecord({"B"}, {.latitude = 0.0, .longitude = -177.0})};
    EXPECT_EQ(ListingText(records, ListingMode::Utm, kSeconds, kComma),
              "32\t500000\t0\tA\t\t\t\t\t\r\n1\t500000\t0\tB\t\t\t\t\t\r\n");
}

TEST(ListingText, WritesTheLocator)
{
    EXPECT_EQ(ListingText(TwoStations(), ListingMode::Locator, kSeconds, kComma),
              std::string("JN58TH") + kFirstTexts + "II49ES" + kSecondTexts);
}

TEST(ListingText, TakesAModeThatDoesNotExistAsTheFirst)
{
    EXPECT_EQ(ListingText(TwoStations(), static_cast<ListingMode>(-7), kSeconds, kPoint),
              ListingText(TwoStations(), ListingMode::DegreeMinutes, kSeconds, kPoint));
}

TEST(ListingText, WritesBlanksForTabsAndLineBreaksInTexts)
{
    const std::vector<StationRecord> records = {
        MakeRecord({"A\tB", "C\rD", "E\nF", "G\r\nH"}, {.latitude = 1.0, .longitude = 2.0})};
    EXPECT_EQ(ListingText(records, ListingMode::Degrees, kSeconds, kPoint),
              "1.00000000\t2.00000000\tA B\tC D\tE F\tG  H\t\t\r\n");
}

TEST(ListingText, IsEmptyWithoutRecords)
{
    EXPECT_EQ(ListingText({}, ListingMode::Degrees, kSeconds, kPoint), "");
}

TEST(ListingText, LeavesColumnsWithoutANumberEmpty)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::vector<StationRecord> records = {
        MakeRecord({"A"}, {.latitude = nan, .longitude = nan})};
    const std::string texts = "\tA\t\t\t\t\t\r\n";
    EXPECT_EQ(ListingText(records, ListingMode::Degrees, kSeconds, kPoint), "\t" + texts);
    EXPECT_EQ(ListingText(records, ListingMode::DegreeMinutes, kSeconds, kPoint), "\t" + texts);
    EXPECT_EQ(ListingText(records, ListingMode::Locator, kSeconds, kPoint), texts);
}

TEST(ListingText, ReadsBackWhenWrittenInDegrees)
{
    StationDatabase original;
    for (int i = 0; i < 1000; ++i) {
        original.Append(
            MakeRecord({"DL" + std::to_string(i) + "\xC4", "N", "O", "145.5", "7"},
                       {.latitude = i * 0.123456785 - 60.0, .longitude = 170.0 - i * 0.312345678}));
    }
    for (const base::NumberFormat& format : {kPoint, kComma}) {
        const std::string listing =
            ListingText(original.Records(), ListingMode::Degrees, kSeconds, format);
        StationDatabase imported;
        const ImportResult result =
            ImportText({reinterpret_cast<const unsigned char*>(listing.data()), listing.size()},
                       "now", imported);
        EXPECT_EQ(result.skipped, 0U);
        ASSERT_EQ(imported.Count(), original.Count());
        for (std::size_t i = 0; i < original.Count(); ++i) {
            EXPECT_EQ(imported[i].Bytes(Field::Callsign), original[i].Bytes(Field::Callsign));
            EXPECT_NEAR(imported[i].Latitude(), original[i].Latitude(), 0.50001e-8);
            EXPECT_NEAR(imported[i].Longitude(), original[i].Longitude(), 0.50001e-8);
        }
    }
}

}  // namespace
}  // namespace stations
