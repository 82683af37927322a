// Starts of the program in folders as users have them: moved, incomplete, on a stick.

#include <filesystem>
#include <unistd.h>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "stations/Records.h"
#include "stations/WorkingFile.h"
#include "ui/main/MainFormFixture.h"
#include "ui/main/MessageBar.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Names = std::vector<std::string>;

namespace fs = std::filesystem;

const stations::StationRecord kOne = stations::MakeRecord({"ONE"}, {48.3125, 11.625});
const stations::StationRecord kTwo = stations::MakeRecord({"TWO"}, {-33.5, 151.25});
const stations::StationRecord kThree = stations::MakeRecord({"THREE"}, {1.5, 2.5});

std::string CallsignsIn(const std::string& file)
{
    return stations::Callsigns(stations::ReadDatabase(file).database);
}

// While one lives, no file can be written into the folder: every name for a new one is taken.
class FullFolder {
public:
    FullFolder()
    {
        for (int i = 0; i < 100; ++i) {
            PutFile(Name(i), "");
        }
    }
    ~FullFolder()
    {
        for (int i = 0; i < 100; ++i) {
            fs::remove(Name(i));
        }
    }
    FullFolder(const FullFolder&) = delete;
    FullFolder& operator=(const FullFolder&) = delete;

private:
    static std::string Name(int i)
    {
        return ".kompasso-" + std::to_string(getpid()) + '-' + std::to_string(i) + ".tmp";
    }
};

class StartFolderTest : public testing::Test {
protected:
    static QStringList Told(ProgramRun& run)
    {
        return run.Find<MessageBar>("MessageBar")->Messages();
    }

    TemporaryFolder folder;
};

TEST_F(StartFolderTest, AStickThatComesBackLosesNoStation)
{
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile({.workingFile = "stick/relais.QTH"}));
    PutFile("WORK.BAK", app::DatabaseFile({kThree}));
    {
        ProgramRun run;
        run.dialogs.answers = {false};
        ASSERT_TRUE(run.Start());
        ASSERT_EQ(run.dialogs.said.size(), 1U);
        EXPECT_EQ(run.dialogs.said[0].title, u"Kompasso Setup-Fehler"_s);
        fs::create_directory("stick");
        PutFile("stick/relais.QTH", app::DatabaseFile({kOne, kTwo}));
        run.Click("SA_0");
        EXPECT_EQ(CallsignsIn("stick/relais.QTH"), "QQ0AAA ");
        EXPECT_EQ(GetFile("stick/relais.QTH.ALT"), app::DatabaseFile({kOne, kTwo}));
        EXPECT_EQ(GetFile("WORK.BAK.ALT"), app::DatabaseFile({kThree}));
        run.window.close();
    }
    ProgramRun next;
    ASSERT_TRUE(next.Start());
    EXPECT_EQ(GetFile("stick/relais.QTH.ALT"), app::DatabaseFile({kOne, kTwo}));
    EXPECT_EQ(GetFile("WORK.BAK.ALT"), app::DatabaseFile({kThree}));
}

TEST_F(StartFolderTest, AWorkingFileThatCouldNotBeMadeIsNotKnown)
{
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile());
    PutFile("WORK.BAK", app::DatabaseFile({kThree}));
    ProgramRun run;
    {
        const FullFolder full;
        ASSERT_TRUE(run.Start());
    }
    PutFile("WORK.QTH", app::DatabaseFile({kOne, kTwo}));
    run.Click("SA_0");
    EXPECT_EQ(CallsignsIn("WORK.QTH"), "QQ0AAA ");
    EXPECT_EQ(GetFile("WORK.QTH.ALT"), app::DatabaseFile({kOne, kTwo}));
    EXPECT_EQ(GetFile("WORK.BAK.ALT"), app::DatabaseFile({kThree}));
}

TEST_F(StartFolderTest, AConfigurationThatCouldNotBeMadeIsNotKnown)
{
    PutFile("WORK.QTH", app::DatabaseFile({kOne}));
    ProgramRun run;
    {
        const FullFolder full;
        ASSERT_TRUE(run.Start());
    }
    const std::string other = app::ConfigurationFile({.workingFile = "andere.QTH"});
    PutFile("KOMP_LOC.CFG", other);
    run.window.close();
    EXPECT_EQ(GetFile("KOMP_LOC.CFG.ALT"), other);
    EXPECT_EQ(GetFile("KOMP_LOC.CFG").size(), 2172U);
}

TEST_F(StartFolderTest, AConfigurationOnAStickThatComesBackIsSetAside)
{
    fs::create_symlink("stick/KOMP_LOC.CFG", "KOMP_LOC.CFG");
    ProgramRun run;
    run.dialogs.answers = {false};
    ASSERT_TRUE(run.Start());
    ASSERT_EQ(run.dialogs.said.size(), 1U);
    EXPECT_EQ(run.dialogs.said[0].title, u"Kompasso Setup-Fehler"_s);
    fs::create_directory("stick");
    const std::string other = app::ConfigurationFile({.workingFile = "andere.QTH"});
    PutFile("stick/KOMP_LOC.CFG", other);
    run.window.close();
    EXPECT_EQ(GetFile("stick/KOMP_LOC.CFG.ALT"), other);
    EXPECT_TRUE(fs::is_symlink("KOMP_LOC.CFG"));
}

TEST_F(StartFolderTest, ACountThatIsTooSmallKeepsTheGoodBackup)
{
    const std::string bytes = app::DatabaseHeader(1) + app::RecordBytes(kOne)
                              + app::RecordBytes(kTwo) + app::RecordBytes(kThree)
                              + app::SpareRecord();
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile());
    PutFile("WORK.QTH", bytes);
    const std::string backup = app::DatabaseFile({kOne, kTwo, kThree});
    PutFile("WORK.BAK", backup);
    for (int start = 0; start < 3; ++start) {
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        EXPECT_TRUE(run.dialogs.said.empty());
        EXPECT_EQ(GetFile("WORK.BAK.ALT"), backup);
        EXPECT_EQ(CallsignsIn("WORK.BAK"), "ONE ");
        EXPECT_EQ(Told(run).size(), start == 0 ? 2 : 1);
        EXPECT_TRUE(Told(run).value(0).contains(u"hinter dem letzten Eintrag"_s));
    }
    EXPECT_FALSE(fs::exists("WORK.BAK.ALT2")) << "a backup of the same records is not kept again";
    EXPECT_EQ(GetFile("WORK.QTH"), bytes);
}

TEST_F(StartFolderTest, AFailedWriteAtStartIsNoSetupError)
{
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile());
    PutFile("WORK.QTH", app::DatabaseFile({kOne, kTwo}));
    PutFile("WORK.BAK", app::DatabaseFile({kThree}));
    fs::permissions("WORK.BAK", fs::perms(0444));
    for (const bool folderInPlace : {false, true}) {
        if (folderInPlace) {
            fs::remove("WORK.BAK");
            fs::create_directory("WORK.BAK");
        }
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        ASSERT_EQ(run.dialogs.said.size(), 1U);
        EXPECT_EQ(run.dialogs.said[0].title, u"Schreibfehler"_s);
        EXPECT_TRUE(run.dialogs.said[0].text.contains(u"WORK.BAK"_s));
        EXPECT_EQ(stations::Callsigns(run.state.database), "ONE TWO ");
    }
}

TEST_F(StartFolderTest, AFullDiskAtTheFirstStartIsOneBoxThatNamesAllFiles)
{
    const FullFolder full;
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    ASSERT_EQ(run.dialogs.said.size(), 1U);
    EXPECT_EQ(run.dialogs.said[0].title, u"Schreibfehler"_s);
    EXPECT_TRUE(run.dialogs.said[0].text.contains(u"KOMP_LOC.CFG"_s));
    EXPECT_EQ(run.dialogs.said[0].informative, u"Ebenso: WORK.QTH, WORK.BAK"_s);
    EXPECT_EQ(run.Text("Text14_0"), "QQ0AAA");
}

TEST_F(StartFolderTest, AMissingFolderNamesTheFileOfTheSameNameHere)
{
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile({.workingFile = "/kein/Stick/relais.QTH"}));
    PutFile("RELAIS.QTH", app::DatabaseFile({kOne}));
    ProgramRun run;
    run.dialogs.answers = {true};
    EXPECT_FALSE(run.Start());
    ASSERT_EQ(run.dialogs.said.size(), 1U);
    const QString more = run.dialogs.said[0].informative;
    EXPECT_TRUE(more.contains(u"/kein/Stick/relais.QTH"_s));
    EXPECT_TRUE(more.contains(u"Ihr Ordner ist nicht da"_s));
    EXPECT_TRUE(more.contains(u"RELAIS.QTH"_s));
    EXPECT_TRUE(more.contains(u"es muss nichts gelöscht werden"_s));
    EXPECT_EQ(folder.Names(), (Names{"KOMP_LOC.CFG", "RELAIS.QTH"}));
}

// A folder that another system has filled.
struct MovedFolder {
    const char* what;
    std::string stored;   // name of the working file in the configuration
    const char* present;  // the file with station ONE; none: empty
    const char* used;     // the working file after the start
    bool told;
};

TEST_F(StartFolderTest, AFolderFromAnotherSystemKeepsItsStations)
{
    const MovedFolder cases[] = {
        {"a path with backslashes", "C:\\KOMPASSO\\WORK.QTH", "WORK.QTH", "WORK.QTH", true},
        {"a path and another case", "C:\\KOMPASSO\\Work.qth", "WORK.QTH", "WORK.QTH", true},
        {"a small name", "WORK.QTH", "work.qth", "work.qth", true},
        {"another case", "Relais.qth", "RELAIS.QTH", "RELAIS.QTH", true},
        {"umlauts in the code page", "D:\\M\xDCNCHEN.QTH", "München.qth", "München.qth", true},
        {"filled up with zeros", std::string("WORK.QTH") + std::string(504, '\0'), "WORK.QTH",
         "WORK.QTH", false},
        {"zeros and blanks", std::string("WORK.QTH\0 \0  ", 13), "WORK.QTH", "WORK.QTH", false},
        {"the very name", "C:\\KOMPASSO\\WORK.QTH", "C:\\KOMPASSO\\WORK.QTH",
         "C:\\KOMPASSO\\WORK.QTH", false},
        {"nothing here", "C:\\KOMPASSO\\RUNDE.QTH", "", "RUNDE.QTH", true},
    };
    for (const MovedFolder& c : cases) {
        SCOPED_TRACE(c.what);
        const TemporaryFolder own;
        PutFile("KOMP_LOC.CFG", app::ConfigurationFile({.workingFile = c.stored}));
        if (*c.present != '\0') {
            PutFile(c.present, app::DatabaseFile({kOne}));
        }
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        EXPECT_TRUE(run.dialogs.said.empty());
        EXPECT_EQ(run.state.configuration.workingFile, c.used);
        EXPECT_EQ(stations::Callsigns(run.state.database), *c.present == '\0' ? "" : "ONE ");
        EXPECT_EQ(Told(run).size(), c.told ? 1 : 0) << Told(run).join(u'|').toStdString();
        EXPECT_EQ(own.Names().size(), 3U) << "no file but the three";
        run.window.close();

        ProgramRun next;
        ASSERT_TRUE(next.Start());
        EXPECT_EQ(next.state.configuration.workingFile, c.used);
        EXPECT_TRUE(Told(next).isEmpty()) << "remembered";
    }
}

TEST_F(StartFolderTest, TheFixedNamesAreFoundWithoutCaseAndKeepTheirSpelling)
{
    PutFile("komp_loc.cfg",
            app::ConfigurationFile({.station1Index = 0, .station1 = app::RecordBytes(kTwo)}));
    PutFile("work.qth", app::DatabaseFile({kOne}));
    PutFile("work.bak", app::DatabaseFile({kThree}));
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.Text("Text14_0"), "TWO");
    EXPECT_EQ(Told(run).size(), 2);
    run.Click("SA_0");
    run.window.close();
    EXPECT_EQ(folder.Names(), (Names{"komp_loc.cfg", "work.bak", "work.qth"}));
    EXPECT_EQ(CallsignsIn("work.qth"), "ONE TWO ");
    EXPECT_EQ(CallsignsIn("work.bak"), "ONE ");
}

TEST_F(StartFolderTest, OfSeveralSpellingsTheExactOneCountsElseTheNewest)
{
    const auto now = fs::file_time_type::clock::now();
    const auto put = [&](const char* name, const stations::StationRecord& record, int age) {
        PutFile(name, app::DatabaseFile({record}));
        fs::last_write_time(name, now - std::chrono::hours(age));
    };
    put("Work.Qth", kOne, 3);
    put("work.qth", kTwo, 1);
    put("wORK.qth", kThree, 2);
    {
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        EXPECT_EQ(stations::Callsigns(run.state.database), "TWO ");
    }
    fs::remove("KOMP_LOC.CFG");
    put("WORK.QTH", kThree, 9);
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(stations::Callsigns(run.state.database), "THREE ");
}

TEST_F(StartFolderTest, WhatTheStartReplacesIsToldWithoutABox)
{
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile());
    {
        ProgramRun missing;
        ASSERT_TRUE(missing.Start());
        EXPECT_EQ(
            Told(missing),
            QStringList{u"Die Arbeitsdatei WORK.QTH fehlte: Eine neue, leere wurde angelegt."_s});
        EXPECT_TRUE(missing.Find<MessageBar>("MessageBar")->isVisible());
        EXPECT_TRUE(missing.dialogs.said.empty());
    }
    PutFile("WORK.QTH", "");
    {
        ProgramRun empty;
        ASSERT_TRUE(empty.Start());
        ASSERT_EQ(Told(empty).size(), 1);
        EXPECT_TRUE(Told(empty)[0].contains(u"kein einziges Byte"_s));
    }
    PutFile("WORK.QTH", "somebody else's");
    PutFile("WORK.BAK", app::DatabaseFile({kThree}));
    PutFile("KOMP_LOC.CFG", "somebody's");
    ProgramRun foreign;
    ASSERT_TRUE(foreign.Start());
    const QStringList told = Told(foreign);
    ASSERT_EQ(told.size(), 3);
    EXPECT_TRUE(told[0].contains(u"KOMP_LOC.CFG.ALT"_s));
    EXPECT_TRUE(told[1].contains(u"WORK.QTH.ALT"_s));
    EXPECT_TRUE(told[2].contains(u"WORK.BAK.ALT"_s));
}

TEST_F(StartFolderTest, AnotherDataFolderIsTold)
{
    ProgramRun run;
    run.state.session.passedOverFolder = "/media/stick/Kompasso";
    ASSERT_TRUE(run.Start());
    ASSERT_EQ(Told(run).size(), 1);
    EXPECT_TRUE(Told(run).value(0).contains(u"/media/stick/Kompasso"_s));
    EXPECT_TRUE(Told(run).value(0).contains(QString::fromStdString(folder.Path().string())));
}

TEST_F(StartFolderTest, AFirstStartInAnEmptyFolderSaysNothing)
{
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(Told(run).isEmpty());
    EXPECT_TRUE(run.dialogs.said.empty());
}

}  // namespace
}  // namespace ui
