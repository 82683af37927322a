#include "ui/DatabaseActions.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "stations/Records.h"
#include "ui/ScriptedDialogs.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;

namespace fs = std::filesystem;

class DatabaseActionsTest : public testing::Test {
protected:
    TemporaryFolder folder;
    app::AppState state;
    ScriptedDialogs dialogs;
};

TEST_F(DatabaseActionsTest, AWriteErrorNamesTheFile)
{
    TellWriteError(nullptr, dialogs, std::make_error_code(std::errc::no_space_on_device),
                   "Märkte.QTH");
    EXPECT_EQ(dialogs.said, (Messages{{u"Schreibfehler"_s,
                                       u"Das Schreiben auf die Datei Märkte.QTH schlug fehl!\n"
                                       u"Bitte Schreibschutz überprüfen und ggf. rücksetzen!"_s}}));
}

TEST_F(DatabaseActionsTest, WithoutAnErrorNothingIsSaid)
{
    TellWriteError(nullptr, dialogs, {}, "WORK.QTH");
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(DatabaseActionsTest, TheProgramsOwnFilesAreRefusedUnderAnyName)
{
    state.configuration.workingFile = "Relais.QTH";
    PutFile("Relais.QTH", "kept");
    fs::create_symlink("Relais.QTH", "Liste.txt");
    EXPECT_TRUE(MayReplace(nullptr, state, dialogs, "Andere.QTH"));
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_FALSE(MayReplace(nullptr, state, dialogs, "Liste.txt"));
    EXPECT_EQ(dialogs.said, (Messages{{{},
                                       u"Die Datei Liste.txt benutzt das Programm selbst, sie "
                                       u"wird nicht überschrieben!"_s}}));
}

TEST_F(DatabaseActionsTest, RecordsAreAppendedUpTo25000)
{
    state.database = stations::CountedDatabase(24999);
    EXPECT_TRUE(AppendRecord(nullptr, state, dialogs, stations::MakeRecord({"LAST"})));
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_FALSE(AppendRecord(nullptr, state, dialogs, stations::MakeRecord({"MORE"})));
    EXPECT_EQ(dialogs.said, (Messages{{{},
                                       u"Fehler: Zu viele Datensätze. Diese Version kann leider "
                                       u"nur maximal 25000 Datensätze bearbeiten"_s}}));
    ASSERT_EQ(state.database.Count(), 25000U);
    EXPECT_EQ(state.database[24999].Text(stations::Field::Callsign), "LAST");
}

}  // namespace
}  // namespace ui
