#include "app/ShutDown.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "app/StartUp.h"
#include "stations/Records.h"

namespace app {
namespace {

class ShutDownTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_FALSE(LoadAtStartUp(state).fault);
        state.shown.record = {stations::MakeRecord({"ONE"}), stations::MakeRecord({"TWO"})};
    }

    std::string FileOfTheNextStart() const
    {
        return ConfigurationFile({.station1Index = 0,
                                  .station2Index = 0,
                                  .station1 = RecordBytes(state.shown.record[0]),
                                  .station2 = RecordBytes(state.shown.record[1])});
    }

    TemporaryFolder folder;
    AppState state;
};

TEST_F(ShutDownTest, StoresBothStationsInTheConfigurationFile)
{
    EXPECT_FALSE(SaveAtEnd(state));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG"), FileOfTheNextStart());
}

TEST_F(ShutDownTest, TheNextStartShowsTheStoredStations)
{
    ASSERT_FALSE(SaveAtEnd(state));
    AppState next;
    ASSERT_FALSE(LoadAtStartUp(next).fault);
    EXPECT_EQ(StationAtStartUp(next.configuration, 0).texts.callsign, "ONE");
    EXPECT_EQ(StationAtStartUp(next.configuration, 1).texts.callsign, "TWO");
}

TEST_F(ShutDownTest, WritesOncePerRun)
{
    EXPECT_FALSE(state.session.configurationSaved);
    ASSERT_FALSE(SaveAtEnd(state));
    EXPECT_TRUE(state.session.configurationSaved);
    std::filesystem::remove("KOMP_LOC.CFG");
    EXPECT_FALSE(SaveAtEnd(state));
    EXPECT_FALSE(std::filesystem::exists("KOMP_LOC.CFG"));
}

TEST_F(ShutDownTest, ReportsAWriteProtectedFileAndLeavesItAlone)
{
    std::filesystem::permissions("KOMP_LOC.CFG", std::filesystem::perms(0444));
    EXPECT_EQ(SaveAtEnd(state), std::errc::permission_denied);
    EXPECT_EQ(GetFile("KOMP_LOC.CFG"), ConfigurationFile());
    EXPECT_FALSE(SaveAtEnd(state)) << "not tried again";
}

TEST_F(ShutDownTest, SetsBytesAsideThatWereNotReadWhole)
{
    AppState other;
    const std::string longer = ConfigurationFile() + "more";
    PutFile("KOMP_LOC.CFG", longer);
    ASSERT_FALSE(LoadAtStartUp(other).fault);
    EXPECT_FALSE(std::filesystem::exists("KOMP_LOC.CFG.ALT")) << "nothing is replaced yet";
    ASSERT_FALSE(SaveAtEnd(other));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG.ALT"), longer);
    EXPECT_EQ(GetFile("KOMP_LOC.CFG").size(), 2172U);
}

}  // namespace
}  // namespace app
