#include "ui/main/MainForm.h"

#include <filesystem>

#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "stations/Records.h"
#include "ui/main/Display.h"
#include "ui/main/MainFormFixture.h"
#include "ui/main/StationListFrame.h"
#include "ui/main/StationListView.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;
using Names = std::vector<std::string>;

namespace fs = std::filesystem;

const stations::StationRecord kOne = stations::MakeRecord(
    {"ONE", "Emil", "Ort", "145.5", "Anm", "2001.02.03-04:05:06"}, {48.3125, 11.625});
const stations::StationRecord kTwo = stations::MakeRecord({"TWO"}, {-33.5, 151.25});

// Runs of the program, one after the other, in one program directory.
class MainFormTest : public testing::Test {
protected:
    TemporaryFolder folder;
};

TEST_F(MainFormTest, TheFirstStartInAnEmptyFolder)
{
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.window.windowTitle().startsWith(u"KOMPASSO V0.28"_s));
    EXPECT_EQ(run.Text("Text14_0"), "QQ0AAA");
    EXPECT_EQ(run.Text("Text14_1"), "QQ0RR");
    EXPECT_EQ(run.Text("Text3_1"), "47.422778");
    EXPECT_EQ(run.Text("Text1_1"), "JN57LK");
    EXPECT_EQ(run.Label("Label3").substr(0, 12), "Entfernung =");
    EXPECT_EQ(folder.Names(), (Names{"KOMP_LOC.CFG", "WORK.BAK", "WORK.QTH"}));
    EXPECT_EQ(GetFile("KOMP_LOC.CFG"), app::ConfigurationFile());
    EXPECT_EQ(GetFile("WORK.QTH"), app::DatabaseFile({}));
    EXPECT_EQ(GetFile("WORK.BAK"), app::DatabaseFile({}));
    EXPECT_TRUE(run.dialogs.said.empty());
    EXPECT_FALSE(run.state.session.configurationSaved);
    EXPECT_EQ(run.state.list.mode, app::ListMode::Nop);
    EXPECT_EQ(run.state.list.key, stations::ListKey::Callsign);
    EXPECT_FALSE(run.Find<QGroupBox>("Frame1")->isVisible());
    EXPECT_FALSE(run.Find<QComboBox>("SortCombo")->isEnabled());
    EXPECT_EQ(run.Find<QComboBox>("SortCombo")->currentText(), u"sortieren nach ..."_s);
    EXPECT_EQ(run.Find<QListView>("List1")->model()->rowCount(), 0);
}

TEST_F(MainFormTest, TheStoredStationsComeBackWithTheirRecords)
{
    PutFile("WORK.QTH", app::DatabaseFile({kOne, kTwo}));
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile({.station1Index = 0,
                                                    .station2Index = 0,
                                                    .station1 = app::RecordBytes(kOne),
                                                    .station2 = app::RecordBytes(kTwo)}));
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    const char* const texts[] = {"ONE", "Emil", "Ort", "145.5", "Anm", "2001.02.03-04:05:06"};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(run.Text(("Text" + std::to_string(14 + i) + "_0").c_str()), texts[i]);
    }
    EXPECT_EQ(run.Text("Text2_0"), "11.625");
    EXPECT_EQ(run.Text("Text3_0"), "48.3125");
    EXPECT_EQ(run.Text("Text1_0"), "JN58TH");
    EXPECT_EQ(run.Text("Text14_1"), "TWO");
    EXPECT_EQ(run.Text("Text15_1"), "");
    EXPECT_EQ(run.Text("Text11_1"), "S");
    EXPECT_EQ(run.state.shown.position[1],
              (geo::GeoPosition{.latitude = -33.5, .longitude = 151.25}));
    EXPECT_EQ(run.Find<QListView>("List1")->model()->rowCount(), 2);
    EXPECT_EQ(GetFile("WORK.BAK"), app::DatabaseFile({kOne, kTwo}));
}

TEST_F(MainFormTest, OnlyStation1IsStored)
{
    PutFile("KOMP_LOC.CFG",
            app::ConfigurationFile({.station1Index = 0, .station1 = app::RecordBytes(kOne)}));
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.Text("Text14_0"), "ONE");
    EXPECT_EQ(run.Text("Text14_1"), "QQ0RR");
    EXPECT_EQ(run.Text("Text2_1"), "10.986667");
}

TEST_F(MainFormTest, TheStoredDegreeFormatIsShown)
{
    std::string configuration = app::ConfigurationFile();
    configuration[10] = '\0';
    PutFile("KOMP_LOC.CFG", configuration);
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_TRUE(run.Find<QAbstractButton>("Option2_1")->isChecked()) << "G-M-S";
    EXPECT_EQ(run.Text("Text10_1"), "22")
        << "47.422778 degrees are 47 degrees 25 minutes 22 seconds";
    run.Find<QPushButton>("Command5")->setFocus();
    QTest::keyClick(run.window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(run.window.focusWidget()->objectName(), u"Option2_1"_s) << "not the other one";
}

TEST_F(MainFormTest, ARunEndsWithBothPanelsInTheConfiguration)
{
    {
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        const QSignalSpy ended(&run.window, &MainForm::Ended);
        run.Type("Text14_0", u"DL1ÄÖ"_s);
        run.Type("Text1_1", u"JN58TH"_s);
        run.Type("Text19_1", u"gestern"_s);
        run.window.close();
        EXPECT_EQ(ended.count(), 1);
    }
    const std::string bytes = GetFile("KOMP_LOC.CFG");
    ASSERT_EQ(bytes.size(), 2172U);
    EXPECT_EQ(bytes.substr(2, 8), std::string(8, '\0')) << "both are stored now";
    EXPECT_EQ(bytes.substr(1592 + 10, 5), "DL1\xC4\xD6");
    ProgramRun next;
    ASSERT_TRUE(next.Start());
    EXPECT_EQ(next.Text("Text14_0"), "DL1ÄÖ");
    EXPECT_EQ(next.Text("Text19_0").size(), 19U) << "the time of saving";
    EXPECT_EQ(next.Text("Text1_1"), "JN58TH");
    EXPECT_EQ(next.Text("Text19_1"), "gestern");
    EXPECT_EQ(next.state.shown.position[1],
              (geo::GeoPosition{.latitude = 48.3125, .longitude = 11.625}));
}

TEST_F(MainFormTest, AConfigurationThatCannotBeWrittenAtTheEndIsTold)
{
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    fs::permissions("KOMP_LOC.CFG", fs::perms(0444));
    const QSignalSpy ended(&run.window, &MainForm::Ended);
    run.window.close();
    EXPECT_EQ(
        run.dialogs.said,
        (Messages{{u"Schreibfehler"_s, u"Das Schreiben auf die Datei KOMP_LOC.CFG schlug fehl!\n"
                                       u"Bitte Schreibschutz überprüfen und ggf. rücksetzen!"_s}}));
    EXPECT_EQ(ended.count(), 1) << "and the program ends";
}

TEST_F(MainFormTest, SichernAppendsThePanelAndSaysSo)
{
    PutFile("WORK.QTH", app::DatabaseFile({kOne}));
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Type("Text14_1", u"  DL1ABC "_s);
    run.Type("Text19_1", u"1999"_s);
    const QSignalSpy changes(&run.window, &MainForm::Changed);
    run.Click("SA_1");
    ASSERT_EQ(run.state.database.Count(), 2U);
    EXPECT_EQ(run.state.database[1],
              stations::MakeRecord({"DL1ABC", "Zugspitzrelais", "Zugspitze", "", "", "1999"},
                                   {47.422778, 10.986667}));
    EXPECT_EQ(GetFile("WORK.QTH"), app::DatabaseFile({kOne, run.state.database[1]}));
    EXPECT_EQ(run.Find<QListView>("List1")->model()->rowCount(), 2);
    auto* const notice = run.window.findChild<Display*>();
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(notice->Label1->text(), u"Eintrag gespeichert!"_s);
    EXPECT_TRUE(run.dialogs.said.empty());
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(MainFormTest, TypedTextsOfAStationAreAnnounced)
{
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Find<QLineEdit>("Text14_0")->setFocus();
    const QSignalSpy changes(&run.window, &MainForm::Changed);
    QTest::keyClick(run.Find<QLineEdit>("Text14_0"), 'X');
    EXPECT_EQ(changes.count(), 1) << "an open map shows the new label";
}

TEST_F(MainFormTest, ARecordWithoutADateCarriesTheTimeOfSaving)
{
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Type("Text19_0", u"   "_s);
    run.Click("SA_0");
    const QString date = QString::fromStdString(run.state.database[0].Text(stations::Field::Date));
    const QDateTime saved = QDateTime::fromString(date, u"yyyy.MM.dd-HH:mm:ss"_s);
    ASSERT_TRUE(saved.isValid()) << date.toStdString();
    EXPECT_LE(std::abs(saved.secsTo(QDateTime::currentDateTime())), 60);
    EXPECT_EQ(run.Text("Text19_0"), "   ") << "the panel is not changed by saving it";
}

TEST_F(MainFormTest, The25001stRecordIsRefused)
{
    ASSERT_FALSE(stations::WriteDatabase("WORK.QTH", stations::CountedDatabase(24999)));
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Click("SA_0");
    EXPECT_EQ(run.state.database.Count(), 25000U);
    EXPECT_TRUE(run.dialogs.said.empty());
    const std::string before = GetFile("WORK.QTH");
    auto* const notice = run.window.findChild<Display*>();
    notice->hide();
    run.Click("SA_0");
    EXPECT_EQ(run.dialogs.said,
              (Messages{{{},
                         u"Fehler: Zu viele Datensätze. Diese Version kann leider nur maximal "
                         u"25000 Datensätze bearbeiten"_s}}));
    EXPECT_EQ(run.state.database.Count(), 25000U);
    EXPECT_EQ(GetFile("WORK.QTH"), before);
    EXPECT_FALSE(notice->isVisible());
}

TEST_F(MainFormTest, ARecordThatCannotBeWrittenIsNotCalledSaved)
{
    PutFile("WORK.QTH", app::DatabaseFile({kOne}));
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    fs::permissions("WORK.QTH", fs::perms(0444));
    run.Click("SA_0");
    EXPECT_EQ(
        run.dialogs.said,
        (Messages{{u"Schreibfehler"_s, u"Das Schreiben auf die Datei WORK.QTH schlug fehl!\n"
                                       u"Bitte Schreibschutz überprüfen und ggf. rücksetzen!"_s}}));
    EXPECT_FALSE(run.window.findChild<Display*>()->isVisible());
    EXPECT_EQ(run.state.database.Count(), 2U) << "the database in memory keeps it";
    EXPECT_EQ(GetFile("WORK.QTH"), app::DatabaseFile({kOne}));
}

TEST_F(MainFormTest, AHostileRecordIsShownAndKept)
{
    std::array<char, sizeof(stations::StationRecord)> bytes = {};
    bytes.fill('\xFF');
    const stations::StationRecord hostile = stations::RecordOf(bytes);
    PutFile("WORK.QTH", app::DatabaseFile({hostile}));
    PutFile("KOMP_LOC.CFG", app::ConfigurationFile({.station1Index = 0,
                                                    .station2Index = 0,
                                                    .station1 = app::RecordBytes(hostile),
                                                    .station2 = app::RecordBytes(hostile)}));
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    run.Click("Command1_0");
    QTest::keyClick(run.Find<QListView>("List1"), Qt::Key_Down);
    QTest::keyClick(run.Find<QListView>("List1"), Qt::Key_Return);
    for (const QLineEdit* const field : run.window.findChildren<QLineEdit*>()) {
        EXPECT_FALSE(field->text().contains(u"nan"_s, Qt::CaseInsensitive));
    }
    EXPECT_EQ(run.state.database[0], hostile);
    run.window.close();
    EXPECT_EQ(GetFile("KOMP_LOC.CFG").size(), 2172U);
}

}  // namespace
}  // namespace ui
