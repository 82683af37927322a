#include <filesystem>

#include <QListView>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "stations/Records.h"
#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;
using Names = std::vector<std::string>;

namespace fs = std::filesystem;

// What the box says, whatever the fault.
Message SetupError(const char* file, const char* reason)
{
    return {u"Kompasso Setup-Fehler"_s,
            u"Setup-Fehler, bitte Work.* und *.cfg löschen!\nBeenden?"_s,
            u"Datei: %1\n%2\nAn der Datei wurde nichts geändert, und es muss nichts gelöscht "
            u"werden. „Abbrechen“ macht mit dem weiter, was lesbar war."_s.arg(
                QString::fromUtf8(file), QString::fromUtf8(reason))};
}

const stations::StationRecord kOne = stations::MakeRecord({"ONE"}, {48.3125, 11.625});
const stations::StationRecord kTwo = stations::MakeRecord({"TWO"}, {-33.5, 151.25});

// A file that nobody can read or write.
void PutObstacle(const char* name)
{
    fs::remove(name);
    fs::create_directory(name);
}

void PutDatabase(const std::string& bytes)
{
    PutFile("WORK.QTH", bytes);
}

// What may be wrong with the files when the program starts.
const struct Damage {
    const char* what;
    void (*make)();
    const char* records;  // that are held after "Cancel"
    const char* file;
    const char* reason;
} kDamages[] = {
    {"negative count", [] { PutDatabase(app::DatabaseHeader(-1) + app::RecordBytes(kOne)); }, "",
     "WORK.QTH", "Die Zahl der Einträge in ihrem Kopf ist unmöglich."},
    {"count above 25000", [] { PutDatabase(app::DatabaseHeader(25001) + app::RecordBytes(kOne)); },
     "", "WORK.QTH", "Die Zahl der Einträge in ihrem Kopf ist unmöglich."},
    {"cut short",
     [] {
         PutDatabase(app::DatabaseHeader(2) + app::RecordBytes(kOne)
                     + app::RecordBytes(kTwo).substr(1));
     },
     "ONE ", "WORK.QTH", "Sie endet vor ihrem letzten Eintrag."},
    {"unreadable configuration", [] { PutObstacle("KOMP_LOC.CFG"); }, "", "KOMP_LOC.CFG",
     "Sie lässt sich nicht lesen."},
    {"unreadable working file", [] { PutObstacle("WORK.QTH"); }, "", "WORK.QTH",
     "Sie lässt sich nicht lesen."},
};

// A start with files of which one is damaged, in a program directory of its own.
class SetupErrorTest : public testing::Test {
protected:
    static void PutFiles(const Damage& damage)
    {
        PutFile("KOMP_LOC.CFG", app::ConfigurationFile());
        PutFile("WORK.QTH", app::DatabaseFile({kTwo}));
        PutFile("WORK.BAK", app::DatabaseFile({kOne}));
        damage.make();
    }

    static std::vector<std::string> Contents()
    {
        std::vector<std::string> contents;
        for (const char* const name : {"KOMP_LOC.CFG", "WORK.QTH", "WORK.BAK"}) {
            contents.push_back(fs::is_regular_file(name) ? GetFile(name) : "an obstacle");
        }
        return contents;
    }
};

TEST_F(SetupErrorTest, OkEndsTheProgramWithNothingWritten)
{
    for (const Damage& damage : kDamages) {
        SCOPED_TRACE(damage.what);
        const TemporaryFolder folder;
        PutFiles(damage);
        const std::vector<std::string> contents = Contents();
        {
            ProgramRun run;
            run.dialogs.answers = {true};
            EXPECT_FALSE(run.Start());
            EXPECT_EQ(run.dialogs.said, Messages{SetupError(damage.file, damage.reason)});
            EXPECT_FALSE(run.window.isVisible());
        }
        EXPECT_EQ(folder.Names(), (Names{"KOMP_LOC.CFG", "WORK.BAK", "WORK.QTH"}));
        EXPECT_EQ(Contents(), contents);
    }
}

TEST_F(SetupErrorTest, CancelGoesOnWithWhatWasRead)
{
    for (const Damage& damage : kDamages) {
        SCOPED_TRACE(damage.what);
        const TemporaryFolder folder;
        PutFiles(damage);
        const std::vector<std::string> contents = Contents();
        ProgramRun run;
        run.dialogs.answers = {false};
        ASSERT_TRUE(run.Start());
        EXPECT_EQ(run.dialogs.said, Messages{SetupError(damage.file, damage.reason)});
        EXPECT_EQ(stations::Callsigns(run.state.database), damage.records);
        EXPECT_EQ(run.Find<QListView>("List1")->model()->rowCount(),
                  static_cast<int>(run.state.database.Count()));
        EXPECT_EQ(run.Text("Text14_0"), "QQ0AAA");
        EXPECT_EQ(run.Text("Text14_1"), "QQ0RR");
        EXPECT_EQ(Contents(), contents) << "nothing is written yet";
    }
}

TEST_F(SetupErrorTest, AfterCancelADamagedWorkingFileIsSetAsideBeforeTheFirstWrite)
{
    for (const Damage& damage : {kDamages[0], kDamages[1], kDamages[2]}) {
        SCOPED_TRACE(damage.what);
        const TemporaryFolder folder;
        PutFiles(damage);
        const std::string damaged = GetFile("WORK.QTH");
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        run.Click("SA_0");
        run.Click("SA_0");
        EXPECT_EQ(stations::Callsigns(stations::ReadDatabase("WORK.QTH").database),
                  damage.records + std::string("QQ0AAA QQ0AAA "));
        EXPECT_EQ(GetFile("WORK.QTH.ALT"), damaged);
        EXPECT_EQ(GetFile("WORK.BAK.ALT"), app::DatabaseFile({kOne}));
        EXPECT_EQ(folder.Names(),
                  (Names{"KOMP_LOC.CFG", "WORK.BAK", "WORK.BAK.ALT", "WORK.QTH", "WORK.QTH.ALT"}))
            << "once";
    }
}

TEST_F(SetupErrorTest, AfterCancelAtAnUnreadableConfigurationNothingIsLost)
{
    const TemporaryFolder folder;
    PutFiles(kDamages[3]);
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.state.database.Empty());
    run.Click("SA_0");
    EXPECT_EQ(stations::Callsigns(stations::ReadDatabase("WORK.QTH").database), "QQ0AAA ");
    EXPECT_EQ(GetFile("WORK.QTH.ALT"), app::DatabaseFile({kTwo}));
    EXPECT_EQ(GetFile("WORK.BAK.ALT"), app::DatabaseFile({kOne}));
    run.window.close();
    EXPECT_EQ(run.dialogs.said.back().title, u"Schreibfehler"_s);
    EXPECT_TRUE(fs::is_directory("KOMP_LOC.CFG"));
}

TEST_F(SetupErrorTest, AnUnreadableWorkingFileIsNeverReplaced)
{
    const TemporaryFolder folder;
    PutFiles(kDamages[4]);
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Click("SA_0");
    EXPECT_EQ(run.dialogs.said.back().title, u"Schreibfehler"_s);
    EXPECT_TRUE(fs::is_directory("WORK.QTH"));
    EXPECT_EQ(run.state.database.Count(), 1U);
}

TEST_F(SetupErrorTest, ForeignFilesAreNoError)
{
    const TemporaryFolder folder;
    PutFile("KOMP_LOC.CFG", "somebody's");
    PutFile("WORK.QTH", "somebody else's");
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.dialogs.said.empty());
    EXPECT_EQ(GetFile("KOMP_LOC.CFG.ALT"), "somebody's");
    EXPECT_EQ(GetFile("WORK.QTH.ALT"), "somebody else's");
}

}  // namespace
}  // namespace ui
