#include "app/StartUp.h"

#include <filesystem>
#include <limits>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "app/DefaultStations.h"
#include "app/FileForms.h"
#include "stations/Records.h"

namespace app {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

const stations::StationRecord kOne = stations::MakeRecord({"ONE", "Name", "Ort"}, {48.5, 11.5});
const stations::StationRecord kTwo = stations::MakeRecord({"TWO"});

class StartUpTest : public testing::Test {
protected:
    // A new file takes another number, even with the same bytes.
    static ino_t FileNumber(const char* name)
    {
        struct stat status = {};
        EXPECT_EQ(stat(name, &status), 0);
        return status.st_ino;
    }

    bool UpdateWorkingFile()
    {
        return !stations::UpdateQTHFile(state.configuration.workingFile, state.database,
                                        state.session.workingFileBytes);
    }

    static bool Succeeded(const StartReport& report)
    {
        return !report.fault && report.failedWrites.empty();
    }

    TemporaryFolder folder;
    AppState state;
};

TEST_F(StartUpTest, TheFirstStartInAnEmptyFolderMakesThreeFiles)
{
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(folder.Names(), (Names{"KOMP_LOC.CFG", "WORK.BAK", "WORK.QTH"}));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG").size(), 2172U);
    EXPECT_EQ(GetFile("KOMP_LOC.CFG"), ConfigurationFile());
    EXPECT_EQ(GetFile("WORK.QTH").size(), 310U);
    EXPECT_EQ(GetFile("WORK.QTH"), DatabaseFile({}));
    EXPECT_EQ(GetFile("WORK.BAK"), DatabaseFile({}));
    EXPECT_EQ(state.configuration, stations::Configuration());
    EXPECT_TRUE(state.database.Empty());
}

TEST_F(StartUpTest, WholeFilesAreReadAndBackedUpAndNotWritten)
{
    PutFile("KOMP_LOC.CFG", ConfigurationFile({.station1Index = 0, .station1 = RecordBytes(kTwo)}));
    PutFile("WORK.QTH", DatabaseFile({kOne, kTwo}));
    PutFile("WORK.BAK", DatabaseFile({kTwo}));
    const ino_t configuration = FileNumber("KOMP_LOC.CFG");
    const ino_t workingFile = FileNumber("WORK.QTH");
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(state.configuration.station1Index, 0);
    EXPECT_EQ(state.configuration.station1, kTwo);
    EXPECT_EQ(stations::Callsigns(state.database), "ONE TWO ");
    EXPECT_EQ(GetFile("WORK.BAK"), DatabaseFile({kOne, kTwo}));
    EXPECT_EQ(FileNumber("KOMP_LOC.CFG"), configuration);
    EXPECT_EQ(FileNumber("WORK.QTH"), workingFile);
    EXPECT_EQ(folder.Names(), (Names{"KOMP_LOC.CFG", "WORK.BAK", "WORK.QTH"}));
}

TEST_F(StartUpTest, TheConfigurationNamesTheWorkingFile)
{
    fs::create_directory("runde");
    PutFile("KOMP_LOC.CFG", ConfigurationFile({.workingFile = "runde/Relais.QTH"}));
    PutFile("runde/Relais.QTH", DatabaseFile({kOne}));
    PutFile("WORK.QTH", "somebody's");
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(stations::Callsigns(state.database), "ONE ");
    EXPECT_EQ(GetFile("WORK.BAK"), DatabaseFile({kOne})) << "in the program directory";
    EXPECT_EQ(GetFile("WORK.QTH"), "somebody's");
}

TEST_F(StartUpTest, FilesWithAWrongMarkAreReplacedAndSetAside)
{
    const std::string configuration = ConfigurationFile({.station1Index = 0, .mark = 150757});
    const std::string database = DatabaseHeader(1, 171295) + RecordBytes(kOne) + SpareRecord();
    PutFile("KOMP_LOC.CFG", configuration);
    PutFile("WORK.QTH", database);
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG"), ConfigurationFile());
    EXPECT_EQ(GetFile("WORK.QTH"), DatabaseFile({}));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG.ALT"), configuration);
    EXPECT_EQ(GetFile("WORK.QTH.ALT"), database);
    EXPECT_EQ(state.configuration.station1Index, -1);
}

TEST_F(StartUpTest, AFileSetAsideNeverReplacesAnother)
{
    PutFile("KOMP_LOC.CFG", "second");
    PutFile("KOMP_LOC.CFG.ALT", "first");
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG.ALT"), "first");
    EXPECT_EQ(GetFile("KOMP_LOC.CFG.ALT2"), "second");
}

TEST_F(StartUpTest, FilesWithoutAByteAreNewOnes)
{
    PutFile("KOMP_LOC.CFG", "");
    PutFile("WORK.QTH", "");
    PutFile("WORK.BAK", "");
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG"), ConfigurationFile());
    EXPECT_EQ(GetFile("WORK.QTH"), DatabaseFile({}));
    EXPECT_EQ(folder.Names(), (Names{"KOMP_LOC.CFG", "WORK.BAK", "WORK.QTH"}));
}

TEST_F(StartUpTest, ADamagedWorkingFileFailsAndIsKept)
{
    const std::string one = RecordBytes(kOne);
    const struct {
        const char* damage;
        std::string bytes;
        const char* callsigns;  // of the records before the damage
    } cases[] = {
        {"negative count", DatabaseHeader(-1) + one + one, ""},
        {"smallest count", DatabaseHeader(std::numeric_limits<std::int32_t>::min()) + one, ""},
        {"count above 25000", DatabaseHeader(25001) + one + one, ""},
        {"largest count", DatabaseHeader(std::numeric_limits<std::int32_t>::max()) + one, ""},
        {"no record of two", DatabaseHeader(2), ""},
        {"cut short inside the first record", DatabaseHeader(2) + one.substr(0, 289), ""},
        {"cut short inside the second record", DatabaseHeader(2) + one + one.substr(0, 10), "ONE "},
        {"count of 25000 over two records", DatabaseHeader(25000) + one + one, "ONE ONE "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.damage);
        const TemporaryFolder own;
        state = AppState();
        PutFile("WORK.QTH", c.bytes);
        PutFile("WORK.BAK", DatabaseFile({kTwo}));
        EXPECT_TRUE(LoadAtStartUp(state).fault);
        EXPECT_EQ(stations::Callsigns(state.database), c.callsigns);
        EXPECT_EQ(GetFile("WORK.QTH"), c.bytes) << "nothing is written over it";
        EXPECT_EQ(GetFile("WORK.BAK"), DatabaseFile({kTwo})) << "no backup of a damaged state";
        EXPECT_FALSE(fs::exists("WORK.QTH.ALT"));

        EXPECT_TRUE(UpdateWorkingFile());
        EXPECT_EQ(GetFile("WORK.QTH.ALT"), c.bytes);
        EXPECT_EQ(GetFile("WORK.BAK.ALT"), DatabaseFile({kTwo}));
        EXPECT_TRUE(UpdateWorkingFile());
        EXPECT_FALSE(fs::exists("WORK.QTH.ALT2")) << "its own file is known";
    }
}

TEST_F(StartUpTest, AFileWithoutTheSpareRecordIsWhole)
{
    PutFile("WORK.QTH", DatabaseHeader(1) + RecordBytes(kOne));
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(stations::Callsigns(state.database), "ONE ");
    EXPECT_EQ(GetFile("WORK.BAK"), DatabaseFile({kOne}));
}

TEST_F(StartUpTest, BytesBehindTheSpareRecordAreNotReadButSetAside)
{
    const std::string bytes = DatabaseFile({kOne}) + RecordBytes(kTwo);
    PutFile("WORK.QTH", bytes);
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(stations::Callsigns(state.database), "ONE ");
    EXPECT_TRUE(UpdateWorkingFile());
    EXPECT_EQ(GetFile("WORK.QTH"), DatabaseFile({kOne}));
    EXPECT_EQ(GetFile("WORK.QTH.ALT"), bytes);
}

TEST_F(StartUpTest, AsManyRecordsAsTheDatabaseHoldsAreRead)
{
    ASSERT_FALSE(stations::WriteDatabase("WORK.QTH", stations::CountedDatabase(25000)));
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    ASSERT_EQ(state.database.Count(), 25000U);
    EXPECT_EQ(state.database[24999].Text(stations::Field::Callsign), "24999");
    EXPECT_EQ(GetFile("WORK.BAK"), GetFile("WORK.QTH"));
}

TEST_F(StartUpTest, AnUnreadableWorkingFileFailsWithNoRecords)
{
    fs::create_directory("WORK.QTH");
    EXPECT_TRUE(LoadAtStartUp(state).fault);
    EXPECT_TRUE(state.database.Empty());
    EXPECT_FALSE(UpdateWorkingFile()) << "what cannot be set aside is not replaced";
    EXPECT_TRUE(fs::is_directory("WORK.QTH"));
}

TEST_F(StartUpTest, AnUnreadableConfigurationLeavesTheRestUnread)
{
    fs::create_directory("KOMP_LOC.CFG");
    PutFile("WORK.QTH", DatabaseFile({kOne}));
    PutFile("WORK.BAK", DatabaseFile({kTwo}));
    EXPECT_TRUE(LoadAtStartUp(state).fault);
    EXPECT_EQ(state.configuration, stations::Configuration());
    EXPECT_TRUE(state.database.Empty());
    EXPECT_EQ(GetFile("WORK.QTH"), DatabaseFile({kOne}));
    EXPECT_EQ(folder.Names(), (Names{"KOMP_LOC.CFG", "WORK.BAK", "WORK.QTH"}));

    EXPECT_TRUE(UpdateWorkingFile());
    EXPECT_EQ(GetFile("WORK.QTH"), DatabaseFile({}));
    EXPECT_EQ(GetFile("WORK.QTH.ALT"), DatabaseFile({kOne}));
    EXPECT_EQ(GetFile("WORK.BAK.ALT"), DatabaseFile({kTwo}));
}

TEST_F(StartUpTest, ABackupWithRecordsIsSetAsideBeforeAnEmptyOneReplacesIt)
{
    PutFile("WORK.BAK", DatabaseFile({kOne}));
    EXPECT_TRUE(Succeeded(LoadAtStartUp(state)));
    EXPECT_EQ(GetFile("WORK.BAK"), DatabaseFile({}));
    EXPECT_EQ(GetFile("WORK.BAK.ALT"), DatabaseFile({kOne}));
}

TEST_F(StartUpTest, AWriteThatFailsIsReportedAndTheStartGoesOn)
{
    PutFile("KOMP_LOC.CFG", ConfigurationFile());
    PutFile("WORK.QTH", DatabaseFile({kOne}));
    fs::create_directory("WORK.BAK");
    StartReport report = LoadAtStartUp(state);
    EXPECT_FALSE(report.fault);
    EXPECT_EQ(report.failedWrites, Names{"WORK.BAK"});
    EXPECT_EQ(stations::Callsigns(state.database), "ONE ");

    PutFile("KOMP_LOC.CFG", "foreign");
    fs::permissions("KOMP_LOC.CFG", fs::perms(0444));
    report = LoadAtStartUp(state);
    EXPECT_FALSE(report.fault);
    EXPECT_EQ(report.failedWrites, (Names{"KOMP_LOC.CFG", "WORK.BAK"}));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG"), "foreign");
    EXPECT_EQ(stations::Callsigns(state.database), "ONE ") << "read nevertheless";
    EXPECT_EQ(state.session.configurationBytes, base::OldBytes::Unknown);
}

TEST_F(StartUpTest, AFolderThatIsNotThereIsAFaultThatNamesTheFileHere)
{
    PutFile("KOMP_LOC.CFG", ConfigurationFile({.workingFile = "stick/relais.QTH"}));
    const StartReport report = LoadAtStartUp(state);
    EXPECT_EQ(report.fault, (SetupFault{SetupFault::Kind::NoFolder, "stick/relais.QTH", ""}));
    EXPECT_EQ(state.session.workingFileBytes, base::OldBytes::Unknown);
    PutFile("Relais.qth", DatabaseFile({kOne}));
    EXPECT_EQ(LoadAtStartUp(state).fault,
              (SetupFault{SetupFault::Kind::NoFolder, "stick/relais.QTH", "Relais.qth"}));
}

TEST_F(StartUpTest, FaultsTellWhatIsWrongWithWhichFile)
{
    const struct {
        std::string bytes;
        SetupFault::Kind kind;
    } cases[] = {
        {DatabaseHeader(-1), SetupFault::Kind::BadCount},
        {DatabaseHeader(25001), SetupFault::Kind::BadCount},
        {DatabaseHeader(1), SetupFault::Kind::CutShort},
    };
    for (const auto& c : cases) {
        PutFile("WORK.QTH", c.bytes);
        EXPECT_EQ(LoadAtStartUp(state).fault, (SetupFault{c.kind, "WORK.QTH", ""}));
    }
    fs::remove("KOMP_LOC.CFG");
    fs::create_directory("KOMP_LOC.CFG");
    EXPECT_EQ(LoadAtStartUp(state).fault,
              (SetupFault{SetupFault::Kind::Unreadable, "KOMP_LOC.CFG", ""}));
}

TEST_F(StartUpTest, ABlankWorkingFileNameFails)
{
    PutFile("KOMP_LOC.CFG", ConfigurationFile({.workingFile = ""}));
    EXPECT_EQ(LoadAtStartUp(state).fault,
              (SetupFault{SetupFault::Kind::NoName, "KOMP_LOC.CFG", ""}));
    EXPECT_FALSE(fs::exists("WORK.BAK"));
}

TEST(StationAtStartUp, IsTheBuiltInOneUntilOneIsStored)
{
    const stations::Configuration configuration;
    const StartStation first = StationAtStartUp(configuration, 0);
    EXPECT_EQ(first.texts.callsign, "QQ0AAA");
    EXPECT_EQ(first.texts.name, "Muster");
    EXPECT_EQ(first.texts.place, "Musterdorf");
    EXPECT_EQ(first.texts.frequency + first.texts.remark + first.texts.date, "");
    const StartStation second = StationAtStartUp(configuration, 1);
    EXPECT_EQ(second.texts.callsign, "QQ0RR");
    EXPECT_EQ(second.texts.name, "Zugspitzrelais");
    EXPECT_EQ(second.texts.place, "Zugspitze");
    EXPECT_EQ(second.texts.frequency + second.texts.remark + second.texts.date, "");
    EXPECT_EQ(second.position, (geo::GeoPosition{.latitude = 47.422778, .longitude = 10.986667}));
}

TEST(StationAtStartUp, TheBuiltInHomeLiesInsideTheDefaultMapRegion)
{
    const geo::GeoPosition home = StationAtStartUp({}, 0).position;
    EXPECT_LT(home.latitude, 48.512);
    EXPECT_GT(home.latitude, 48.188);
    EXPECT_GT(home.longitude, 11.163);
    EXPECT_LT(home.longitude, 11.737);
}

TEST(StationAtStartUp, EachStoredStationStandsForItself)
{
    stations::Configuration configuration;
    configuration.station1 = kOne;
    configuration.station2 = kTwo;
    configuration.station1Index = 0;
    EXPECT_EQ(StationAtStartUp(configuration, 0).texts.callsign, "ONE");
    EXPECT_EQ(StationAtStartUp(configuration, 0).texts.place, "Ort");
    EXPECT_EQ(StationAtStartUp(configuration, 0).position,
              (geo::GeoPosition{.latitude = 48.5, .longitude = 11.5}));
    EXPECT_EQ(StationAtStartUp(configuration, 1).texts.callsign, "QQ0RR");
    configuration.station1Index = -1;
    configuration.station2Index = 7;
    EXPECT_EQ(StationAtStartUp(configuration, 0).texts.callsign, "QQ0AAA");
    EXPECT_EQ(StationAtStartUp(configuration, 1).texts.callsign, "TWO");
}

}  // namespace
}  // namespace app
