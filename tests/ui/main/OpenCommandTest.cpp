#include <filesystem>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "ui/main/FileCommandsFixture.h"
#include "ui/main/MessageBar.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;

namespace fs = std::filesystem;

class OpenCommandTest : public FileCommandsFixture {
protected:
    void Open(const std::string& name)
    {
        dialogs.said.clear();
        dialogs.files.push_back(QString::fromStdString(name));
        Choose("MnuOpen");
    }

    QStringList Told() { return Find<MessageBar>("MessageBar")->Messages(); }

    // That nothing has become of the command.
    void ExpectNothingChanged()
    {
        EXPECT_EQ(Callsigns(), (Names{"QQ1A", "QQ2B", "QQ3C", "QQ4D"}));
        EXPECT_EQ(Lines(), 4);
        EXPECT_EQ(state.configuration.workingFile, "WORK.QTH");
    }
};

TEST_F(OpenCommandTest, TheBackupBecameTheWorkingFileAndItsOwnBackup)
{
    Write("WORK.BAK", Database({"QQ9X"}));
    fs::create_symlink(Path("WORK.BAK"), Path("symbolic.QTH"));
    fs::create_hard_link(Path("WORK.BAK"), Path("hard.QTH"));
    for (const char* const name : {"WORK.BAK", "symbolic.QTH", "hard.QTH"}) {
        SCOPED_TRACE(name);
        Open(Path(name));
        EXPECT_EQ(dialogs.said,
                  (Messages{{{},
                             u"Die Datei "_s + QString::fromStdString(Path(name))
                                 + u" ist die Sicherung vom letzten Start, sie wird nicht zur "
                                   u"Arbeitsdatei!\n„Anfügen“ holt ihre Einträge zurück."_s}}));
        ExpectNothingChanged();
    }
    ChooseFile("WORK.BAK");
    Choose("MnuAppend");
    EXPECT_EQ(Callsigns().back(), "QQ9X") << "as the message says";
}

TEST_F(OpenCommandTest, TheBackupIsKnownUnderTheSpellingItHas)
{
    fs::rename(Path("WORK.BAK"), Path("work.bak"));
    state.session.backupName = "work.bak";
    Open(Path("work.bak"));
    EXPECT_EQ(dialogs.said.size(), 1U);
    ExpectNothingChanged();
}

TEST_F(OpenCommandTest, TheWorkingFileItselfIsReadAgain)
{
    const std::string before = Bytes(Path("WORK.QTH"));
    Open(Path("WORK.QTH"));
    ExpectNothingChanged();
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_EQ(Bytes(Path("WORK.QTH")), before);
    Click("SA_0");
    EXPECT_EQ(stations::ReadDatabase(Path("WORK.QTH")).database.Count(), 5U);
    EXPECT_FALSE(fs::exists(Path("WORK.QTH.ALT")));
}

TEST_F(OpenCommandTest, AMovedPortableFolderLostItsDatabase)
{
    fs::create_directories(Path("sub/deep"));
    fs::create_directory(Path("folder"));
    fs::create_directory_symlink(Path("sub"), Path("link"));
    for (const char* const name : {"other.QTH", "sub/deep/other.QTH", "folder/other.QTH"}) {
        Write(name, Database({"QQ9X"}));
    }
    const TemporaryFolder elsewhere;
    fs::create_directory_symlink(folder.path().toStdString(), "program");
    fs::create_directory_symlink(Path("sub"), "sub");
    PutFile("other.QTH", app::DatabaseFile({Record("QQ9X")}));
    fs::current_path(folder.path().toStdString());
    const std::string outside = elsewhere.Path().string();
    const struct {
        std::string chosen;
        std::string stored;
    } cases[] = {
        {Path("other.QTH"), "other.QTH"},
        {Path("./other.QTH"), "other.QTH"},
        {Path("sub/../other.QTH"), "other.QTH"},
        {outside + "/program/other.QTH", "other.QTH"},
        {Path("sub/deep/other.QTH"), "sub/deep/other.QTH"},
        {Path("folder/../sub/deep/other.QTH"), "sub/deep/other.QTH"},
        {Path("link/deep/other.QTH"), "link/deep/other.QTH"},
        {outside + "/program/sub/deep/other.QTH", "sub/deep/other.QTH"},
        {outside + "/sub/deep/other.QTH", "sub/deep/other.QTH"},
        {outside + "/other.QTH", outside + "/other.QTH"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.chosen);
        Open(c.chosen);
        EXPECT_EQ(Callsigns(), Names{"QQ9X"});
        EXPECT_EQ(state.configuration.workingFile, c.stored);
    }
    Open(Path("sub/deep/other.QTH"));
    window.close();

    const std::string moved = outside + "/moved";
    fs::copy(folder.path().toStdString(), moved, fs::copy_options::recursive);
    fs::remove_all(Path("sub"));
    fs::current_path(moved);
    ProgramRun next;
    ASSERT_TRUE(next.Start());
    EXPECT_EQ(next.state.configuration.workingFile, "sub/deep/other.QTH");
    EXPECT_EQ(next.state.database.Count(), 1U);
}

TEST_F(OpenCommandTest, ADatabaseDeepInTheProgramFolderHadTooLongAName)
{
    std::string deep;
    while (Path(deep.c_str()).size() < 530) {
        deep += std::string(20, 'd') + '/';
    }
    fs::create_directories(deep);
    const std::string name = deep.substr(0, 504) + "x.QTH";
    ASSERT_GT(Path(name.c_str()).size(), 512U);
    Write(name.c_str(), Database({"QQ9X"}));
    Open(Path(name.c_str()));
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_EQ(state.configuration.workingFile, name);
}

TEST_F(OpenCommandTest, AFileThatIsNoDatabaseEndedTheCommandWithoutAWord)
{
    const struct {
        const char* name;
        std::string bytes;
        QString told;
    } cases[] = {
        {"foreign.QTH", std::string(400, 'x'), u" ist keine Stationsdatenbank."_s},
        {"short.QTH", "x", u" ist keine Stationsdatenbank."_s},
        {"KOMP_LOC.CFG", GetFile("KOMP_LOC.CFG"), u" ist keine Stationsdatenbank."_s},
        {"empty.QTH", "", u" ist leer."_s},
    };
    QStringList expected;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        PutFile(c.name, c.bytes);
        for (const char* const command : {"MnuOpen", "MnuAppend"}) {
            ChooseFile(c.name);
            Choose(command);
            expected << u"Die Datei "_s + QString::fromStdString(Path(c.name)) + c.told;
            EXPECT_EQ(Told(), expected);
        }
        EXPECT_EQ(GetFile(c.name), c.bytes);
    }
    for (const char* const command : {"MnuOpen", "MnuAppend"}) {
        ChooseFile("missing.QTH");
        Choose(command);
        expected << u"Die Datei "_s + QString::fromStdString(Path("missing.QTH"))
                        + u" gibt es nicht."_s;
        EXPECT_EQ(Told(), expected);
    }
    EXPECT_TRUE(Find<MessageBar>("MessageBar")->isVisible());
    EXPECT_TRUE(dialogs.said.empty()) << "no box";
    ExpectNothingChanged();
}

}  // namespace
}  // namespace ui
