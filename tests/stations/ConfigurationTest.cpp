#include "stations/Configuration.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "stations/Records.h"

namespace stations {
namespace {

using Names = std::vector<std::string>;

std::string Padded(const std::string& text)
{
    return text + std::string(512 - text.size(), ' ');
}

const std::string kMagic("\xE6\x4C\x02\x00", 4);

// The defaults, written down field after field.
std::string DefaultFile()
{
    return std::string("\x01\x00", 2)                         // format
           + std::string(4, '\xFF') + std::string(4, '\xFF')  // station indexes
           + '\x01' + '\x01'                                  // degree format, datum
           + std::string(20, '\0')                            // reserved
           + std::string("\x0E\x00", 2)                       // zoom level
           + std::string(2, '\0')                             // listing mode
           + std::string(2, '\0')                             // automatic redraw
           + std::string(2, '\0')                             // compass direction
           + std::string(2, '\0')                             // label choice
           + std::string(2, '\xFF')                           // reference points
           + std::string(2, '\0')                             // optimised display
           + std::string(2, '\xFF')                           // optimised output
           + std::string(2, '\xFF') + std::string(2, '\xFF')  // Station 1, Station 2
           + Padded("WORK.QTH") + Padded("") + Padded("")     //
           + kMagic + std::string(580, '\0');
}

std::string TextOf(const base::ByteVector& bytes)
{
    return {bytes.begin(), bytes.end()};
}

ConfigurationContents Unpack(const std::string& file)
{
    return UnpackConfiguration({reinterpret_cast<const unsigned char*>(file.data()), file.size()});
}

Configuration AllDifferent()
{
    Configuration configuration;
    configuration.format = 2;
    configuration.station1Index = 0;
    configuration.station2Index = 7;
    configuration.degreeFormat = geo::DegreeMinuteMode::Seconds;
    configuration.datum = 200;
    configuration.reserved.fill(0xAB);
    configuration.zoomLevel = 33;
    configuration.listingMode = ListingMode::Locator;
    configuration.autoRedraw = true;
    configuration.compassDirection = true;
    configuration.labelChoice = LabelChoice::Remark;
    configuration.showReferencePoints = false;
    configuration.optimisedDisplay = true;
    configuration.optimisedOutput = false;
    configuration.showStation1 = false;
    configuration.showStation2 = false;
    configuration.workingFile = "/tmp/my \xC3\xBC stations.QTH";
    configuration.lastImage = std::string(512, 'x');
    configuration.lastMapFolder = " leading";
    configuration.station1 = MakeRecord({"A"}, {.latitude = 1.0, .longitude = 2.0});
    configuration.station2 = MakeRecord({"B"});
    return configuration;
}

TEST(PackConfiguration, WritesTheDefaultsInto2172Bytes)
{
    EXPECT_EQ(DefaultFile().size(), 2172U);
    EXPECT_EQ(TextOf(PackConfiguration(Configuration())), DefaultFile());
}

TEST(PackConfiguration, PutsEachFieldAtItsOffset)
{
    const std::string file = TextOf(PackConfiguration(AllDifferent()));
    const struct {
        std::size_t offset;
        std::string bytes;
    } cases[] = {
        {0, {2, 0}},
        {2, std::string(4, '\0')},
        {6, {7, 0, 0, 0}},
        {10, std::string("\x00\xC8", 2)},
        {12, std::string(20, '\xAB')},
        {32, {33, 0, 3, 0}},
        {36, std::string("\xFF\xFF\xFF\xFF\x04\x00", 6)},
        {42, std::string("\x00\x00\xFF\xFF\x00\x00\x00\x00\x00\x00", 10)},
        {52, Padded("/tmp/my \xC3\xBC stations.QTH")},
        {564, std::string(512, 'x')},
        {1076, Padded(" leading")},
        {1588, kMagic},
        {1592, std::string("\x02\x02\x02", 3)},
        {1602, "A "},
        {1858, std::string("\x00\x00\x00\x00\x00\x00\x00\x40", 8)},
        {1866, std::string("\x00\x00\x00\x00\x00\x00\xF0\x3F", 8)},
        {1892, "B "},
    };
    ASSERT_EQ(file.size(), 2172U);
    for (const auto& c : cases) {
        EXPECT_EQ(file.substr(c.offset, c.bytes.size()), c.bytes) << c.offset;
    }
}

TEST(UnpackConfiguration, GivesBackWhatWasPacked)
{
    const ConfigurationContents contents = Unpack(TextOf(PackConfiguration(AllDifferent())));
    EXPECT_EQ(contents.status, ConfigurationStatus::Read);
    EXPECT_EQ(contents.oldBytes, base::OldBytes::Known);
    EXPECT_EQ(contents.configuration, AllDifferent());
}

TEST(UnpackConfiguration, FallsBackToTheDefaultsForAForeignFile)
{
    std::string file = TextOf(PackConfiguration(AllDifferent()));
    file[1588] = 'x';
    const ConfigurationContents contents = Unpack(file);
    EXPECT_EQ(contents.status, ConfigurationStatus::Foreign);
    EXPECT_EQ(contents.oldBytes, base::OldBytes::Unknown);
    EXPECT_EQ(contents.configuration, Configuration());
}

TEST(UnpackConfiguration, SurvivesEveryLength)
{
    const std::string file = TextOf(PackConfiguration(AllDifferent()));
    for (std::size_t length = 1; length < file.size(); ++length) {
        SCOPED_TRACE(length);
        const ConfigurationContents contents = Unpack(file.substr(0, length));
        EXPECT_EQ(contents.oldBytes, base::OldBytes::Unknown);
        EXPECT_EQ(contents.status,
                  length < 1592 ? ConfigurationStatus::Foreign : ConfigurationStatus::Read);
    }
    EXPECT_EQ(Unpack("").status, ConfigurationStatus::New);
}

TEST(UnpackConfiguration, LeavesAStationBehindTheEndAsItWas)
{
    const std::string file = TextOf(PackConfiguration(AllDifferent()));
    const Configuration configuration = Unpack(file.substr(0, 2171)).configuration;
    EXPECT_EQ(configuration.station1, AllDifferent().station1);
    EXPECT_EQ(configuration.station2, StationRecord());
}

TEST(UnpackConfiguration, KnowsOfBytesBehindTheRecord)
{
    const ConfigurationContents contents = Unpack(DefaultFile() + 'x');
    EXPECT_EQ(contents.status, ConfigurationStatus::Read);
    EXPECT_EQ(contents.oldBytes, base::OldBytes::Unknown);
}

TEST(UnpackConfiguration, OpensTheMapOnlyInASizeThatItHas)
{
    for (const int size : {1, 14, 33, 0, 34, -1, 32767, -32768}) {
        Configuration configuration;
        configuration.zoomLevel = static_cast<std::int16_t>(size);
        const std::string file = TextOf(PackConfiguration(configuration));
        EXPECT_EQ(Unpack(file).configuration.zoomLevel, size >= 1 && size <= 33 ? size : 14);
    }
}

TEST(FitsConfiguration, RefusesNamesThatWouldComeBackDifferent)
{
    EXPECT_TRUE(FitsConfiguration("WORK.QTH"));
    EXPECT_TRUE(FitsConfiguration(std::string(512, 'x')));
    EXPECT_FALSE(FitsConfiguration(std::string(513, 'x')));
    EXPECT_FALSE(FitsConfiguration("WORK.QTH "));
    EXPECT_FALSE(FitsConfiguration(""));
}

class ConfigurationFileTest : public testing::Test {
protected:
    TemporaryFolder folder;
};

TEST_F(ConfigurationFileTest, IsNewWhenMissingOrEmpty)
{
    EXPECT_EQ(ReadConfiguration("K.CFG").status, ConfigurationStatus::New);
    PutFile("K.CFG", "");
    const ConfigurationContents contents = ReadConfiguration("K.CFG");
    EXPECT_EQ(contents.status, ConfigurationStatus::New);
    EXPECT_EQ(contents.configuration, Configuration());
    base::OldBytes oldBytes = contents.oldBytes;
    EXPECT_FALSE(WriteConfiguration("K.CFG", contents.configuration, oldBytes));
    EXPECT_EQ(GetFile("K.CFG"), DefaultFile());
    EXPECT_EQ(TemporaryFolder::Names(), Names{"K.CFG"});
}

TEST_F(ConfigurationFileTest, IsReadBackAsItWasWritten)
{
    base::OldBytes oldBytes = base::OldBytes::Known;
    EXPECT_FALSE(WriteConfiguration("K.CFG", AllDifferent(), oldBytes));
    const ConfigurationContents contents = ReadConfiguration("K.CFG");
    EXPECT_EQ(contents.status, ConfigurationStatus::Read);
    EXPECT_EQ(contents.configuration, AllDifferent());
}

TEST_F(ConfigurationFileTest, SetsAForeignFileAsideBeforeItIsReplaced)
{
    PutFile("K.CFG", "foreign");
    const ConfigurationContents contents = ReadConfiguration("K.CFG");
    EXPECT_EQ(contents.status, ConfigurationStatus::Foreign);
    base::OldBytes oldBytes = contents.oldBytes;
    EXPECT_FALSE(WriteConfiguration("K.CFG", contents.configuration, oldBytes));
    EXPECT_EQ(oldBytes, base::OldBytes::Known);
    EXPECT_EQ(GetFile("K.CFG.ALT"), "foreign");
    EXPECT_EQ(GetFile("K.CFG"), DefaultFile());
}

TEST_F(ConfigurationFileTest, IsUnreadableWhenItIsNoFile)
{
    std::filesystem::create_directory("K.CFG");
    const ConfigurationContents contents = ReadConfiguration("K.CFG");
    EXPECT_EQ(contents.status, ConfigurationStatus::Unreadable);
    EXPECT_EQ(contents.configuration, Configuration());
    base::OldBytes oldBytes = contents.oldBytes;
    EXPECT_TRUE(WriteConfiguration("K.CFG", contents.configuration, oldBytes));
}

}  // namespace
}  // namespace stations
