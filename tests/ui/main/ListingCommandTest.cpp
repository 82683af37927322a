#include <filesystem>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "ui/main/FileCommandsFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;

namespace fs = std::filesystem;

const Message kQuestion = {u"Listing"_s, u"Datei existiert bereits. Löschen?"_s};

class ListingCommandTest : public FileCommandsFixture {
protected:
    void WriteListing(const char* name)
    {
        dialogs.said.clear();
        ChooseFile(name);
        Choose("MnuList");
    }

    // A listing into a file of these bytes is refused with this text about it.
    void ExpectRefused(const char* name, const std::string& bytes, const QString& reason)
    {
        SCOPED_TRACE(name);
        WriteBytes(name, bytes);
        dialogs.answers = {true};
        WriteListing(name);
        EXPECT_EQ(dialogs.said,
                  (Messages{{{}, u"Die Datei "_s + QString::fromStdString(Path(name)) + reason}}));
        EXPECT_EQ(Bytes(Path(name)), bytes);
    }
};

TEST_F(ListingCommandTest, AListingReplacedAnyFileUnasked)
{
    WriteBytes("old.lst", "diary");
    WriteListing("old.lst");
    EXPECT_EQ(dialogs.said, Messages{kQuestion});
    EXPECT_EQ(dialogs.parents, std::vector<const QWidget*>{&window});
    EXPECT_EQ(Bytes(Path("old.lst")), "diary") << "cancelled";
    dialogs.answers = {true};
    WriteListing("old.lst");
    EXPECT_EQ(dialogs.said, Messages{kQuestion});
    EXPECT_TRUE(Bytes(Path("old.lst")).ends_with("\r\n"));
    WriteListing("new.lst");
    EXPECT_TRUE(dialogs.said.empty()) << "nothing to lose";
    EXPECT_EQ(Bytes(Path("new.lst")), Bytes(Path("old.lst")));
}

TEST_F(ListingCommandTest, AListingReplacedADatabaseThatWasNotTheOpenOne)
{
    const QString database = u" ist eine Stationsdatenbank, sie wird nicht überschrieben!"_s;
    ExpectRefused("other.QTH", app::DatabaseFile({Record("QQ9X")}), database);
    ExpectRefused("damaged.lst", app::DatabaseHeader(-1), database);
    ExpectRefused("short.lst", app::DatabaseHeader(2), database);
    Write("linked.QTH", Database({"QQ9X"}));
    fs::create_symlink(Path("linked.QTH"), Path("link.lst"));
    const std::string before = Bytes(Path("linked.QTH"));
    dialogs.answers = {true};
    WriteListing("link.lst");
    EXPECT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(Bytes(Path("linked.QTH")), before);
}

TEST_F(ListingCommandTest, AListingReplacedAnAdjustmentFile)
{
    const std::string adjustment =
        std::string(236, '\0') + app::LittleEndian(161101, 4) + std::string(96, '\0');
    const QString reason = u" ist eine Justagedatei, sie wird nicht überschrieben!"_s;
    ExpectRefused("karte.JUS", adjustment, reason);
    ExpectRefused("short.JUS", adjustment.substr(0, 240), reason);
}

TEST_F(ListingCommandTest, AListingReplacedAConfiguration)
{
    const QString reason = u" ist eine Konfiguration, sie wird nicht überschrieben!"_s;
    ExpectRefused("old.CFG", app::ConfigurationFile(), reason);
    ExpectRefused("short.CFG", app::ConfigurationFile().substr(0, 1592), reason);
}

TEST_F(ListingCommandTest, AListingReplacedWhatNobodyCouldRead)
{
    fs::create_directory(Path("folder.lst"));
    dialogs.answers = {true};
    WriteListing("folder.lst");
    EXPECT_EQ(dialogs.said,
              (Messages{{{},
                         u"Die Datei "_s + QString::fromStdString(Path("folder.lst"))
                             + u" lässt sich nicht lesen, sie wird nicht überschrieben!"_s}}));
    EXPECT_TRUE(fs::is_directory(Path("folder.lst")));
}

TEST_F(ListingCommandTest, OwnFilesAreRefusedByIdentityBeforeTheyAreAskedAbout)
{
    fs::rename(Path("WORK.BAK"), Path("work.bak"));
    state.session.backupName = "work.bak";
    fs::create_hard_link(Path("WORK.QTH"), Path("hard.lst"));
    fs::create_hard_link(Path("work.bak"), Path("backup.lst"));
    fs::create_symlink(Path("KOMP_LOC.CFG"), Path("symbolic.lst"));
    for (const char* const name : {"hard.lst", "backup.lst", "symbolic.lst", "work.bak"}) {
        SCOPED_TRACE(name);
        const std::string before = Bytes(Path(name));
        for (const char* const button : {"Command7", "Command6"}) {
            Mark({0});
            dialogs.said.clear();
            ChooseFile(name);
            QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
            ASSERT_EQ(dialogs.said.size(), 1U);
            EXPECT_TRUE(dialogs.said[0].text.contains(u"benutzt das Programm selbst"_s));
        }
        dialogs.answers = {true};
        WriteListing(name);
        ASSERT_EQ(dialogs.said.size(), 1U);
        EXPECT_TRUE(dialogs.said[0].text.contains(u"benutzt das Programm selbst"_s));
        EXPECT_EQ(Bytes(Path(name)), before);
        EXPECT_EQ(Callsigns().size(), 4U);
    }
}

}  // namespace
}  // namespace ui
