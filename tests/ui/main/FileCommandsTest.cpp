#include "ui/main/FileCommands.h"

#include <filesystem>

#include <QRegularExpression>

#include "ui/main/FileCommandsFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;

const QString kTooMany =
    u"Fehler: Zu viele Datensätze. Diese Version kann leider nur maximal 25000 Datensätze "
    u"bearbeiten"_s;

using FileCommandsTest = FileCommandsFixture;

TEST_F(FileCommandsTest, DialogsAskWithTheirTitlesAndFilters)
{
    Mark({0});
    Choose("MnuOpen");
    Choose("MnuAppend");
    QTest::mouseClick(Find<QPushButton>("Command7"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>("Command6"), Qt::LeftButton);
    Choose("MnuList");
    Choose("MnuTest");
    const QString database = u"QHT-Dateien (*.qth)|*.QTH|alle Dateien (*.*)|*.*"_s;
    const std::vector<std::pair<QString, QString>> expected = {
        {u"QTH Datenbank öffnen"_s, database},
        {u"QTH Datenbank anfügen"_s, database},
        {u"Ausgewählte Einträge sichern"_s, database},
        {u"Ausgewählte Einträge sichern"_s, database},
        {u""_s, u"LST-Dateien (*.lst;*.txt)|*.lst;*.txt|alle Dateien (*.*)|*.*"_s},
        {u"Excel Textfile import (TEST)"_s, u"TXT-Dateien (*.txt)|*.txt|alle Dateien (*.*)|*.*"_s},
    };
    ASSERT_EQ(dialogs.asked.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(dialogs.asked[i].title, expected[i].first);
        EXPECT_EQ(dialogs.asked[i].filter, expected[i].second);
    }
    EXPECT_TRUE(dialogs.said.empty()) << "a cancelled dialog says nothing";
    EXPECT_EQ(Callsigns(), (Names{"QQ1A", "QQ2B", "QQ3C", "QQ4D"}));
}

TEST_F(FileCommandsTest, OpenMakesTheFileTheWorkingFile)
{
    Write("other.QTH", Database({"QQ9X", "QQ9Y"}));
    const std::string before = Bytes(Path("WORK.QTH"));
    ChooseFile("other.QTH");
    Choose("MnuOpen");
    EXPECT_EQ(Callsigns(), (Names{"QQ9X", "QQ9Y"}));
    EXPECT_EQ(Lines(), 2);
    EXPECT_EQ(state.configuration.workingFile, "other.QTH");
    QTest::mouseClick(Find<QPushButton>("SA_0"), Qt::LeftButton);
    EXPECT_EQ(Bytes(Path("WORK.QTH")), before);
    EXPECT_EQ(stations::ReadDatabase(Path("other.QTH")).database.Count(), 3U);
}

TEST_F(FileCommandsTest, OpenIgnoresAForeignFileWithoutABox)
{
    WriteBytes("foreign.QTH", std::string(400, 'x'));
    ChooseFile("foreign.QTH");
    Choose("MnuOpen");
    EXPECT_EQ(Callsigns().size(), 4U);
    EXPECT_EQ(state.configuration.workingFile, "WORK.QTH");
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(FileCommandsTest, OpenRefusesADamagedFileByName)
{
    Write("short.QTH", Database({"QQ9X", "QQ9Y"}));
    std::filesystem::resize_file(Path("short.QTH"), 20 + 290 + 100);
    const std::string damaged = Bytes(Path("short.QTH"));
    ChooseFile("short.QTH");
    Choose("MnuOpen");
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(dialogs.said[0].text.contains(QString::fromStdString(Path("short.QTH"))));
    EXPECT_EQ(Callsigns().size(), 4U);
    EXPECT_EQ(state.configuration.workingFile, "WORK.QTH");
    EXPECT_EQ(Bytes(Path("short.QTH")), damaged);
}

TEST_F(FileCommandsTest, OpenCreatesNoFile)
{
    ChooseFile("missing.QTH");
    Choose("MnuOpen");
    EXPECT_FALSE(std::filesystem::exists(Path("missing.QTH")));
    EXPECT_EQ(state.configuration.workingFile, "WORK.QTH");
}

TEST_F(FileCommandsTest, AppendAddsTheRecordsAndWritesTheWorkingFile)
{
    Write("more.QTH", Database({"QQ9X", "QQ9Y"}));
    ChooseFile("more.QTH");
    Choose("MnuAppend");
    EXPECT_EQ(Callsigns(), (Names{"QQ1A", "QQ2B", "QQ3C", "QQ4D", "QQ9X", "QQ9Y"}));
    EXPECT_EQ(Lines(), 6);
    EXPECT_EQ(stations::ReadDatabase(Path("WORK.QTH")).database.Count(), 6U);
    EXPECT_EQ(state.configuration.workingFile, "WORK.QTH");
}

TEST_F(FileCommandsTest, AppendingTheWorkingFileToItselfDoublesIt)
{
    ChooseFile("WORK.QTH");
    Choose("MnuAppend");
    EXPECT_EQ(Callsigns().size(), 8U);
    EXPECT_EQ(stations::ReadDatabase(Path("WORK.QTH")).database.Count(), 8U);
}

TEST_F(FileCommandsTest, AppendStopsOneRecordBeforeTheLimit)
{
    stations::StationDatabase many;
    for (int i = 0; i < 24996; ++i) {
        many.Append(Record("QQ5E"));
    }
    Write("many.QTH", many);
    ChooseFile("many.QTH");
    Choose("MnuAppend");
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0], (Message{{}, kTooMany}));
    EXPECT_EQ(Callsigns().size(), 4U);

    many.Truncate(24995);
    Write("many.QTH", many);
    ChooseFile("many.QTH");
    Choose("MnuAppend");
    EXPECT_EQ(state.database.Count(), 24999U);
}

TEST_F(FileCommandsTest, SaveMarkedWritesTheMarkedRecordsInOrder)
{
    Mark({3, 1});
    ChooseFile("marked");
    QTest::mouseClick(Find<QPushButton>("Command7"), Qt::LeftButton);
    const stations::DatabaseContents saved = stations::ReadDatabase(Path("marked.QTH"));
    ASSERT_EQ(saved.status, stations::DatabaseStatus::Complete);
    ASSERT_EQ(saved.database.Count(), 2U);
    EXPECT_EQ(saved.database[0], state.database[1]);
    EXPECT_EQ(saved.database[1], state.database[3]);
    EXPECT_EQ(Callsigns().size(), 4U);
}

TEST_F(FileCommandsTest, SaveMarkedWithoutMarksWritesAValidEmptyFile)
{
    Mark({0, 0});  // marked and unmarked again
    ChooseFile("none.QTH");
    QTest::mouseClick(Find<QPushButton>("Command7"), Qt::LeftButton);
    EXPECT_EQ(Bytes(Path("none.QTH")).size(), 310U);
    EXPECT_EQ(stations::ReadDatabase(Path("none.QTH")).status, stations::DatabaseStatus::Complete);
}

TEST_F(FileCommandsTest, SaveOpenSaveIsByteIdentical)
{
    Mark({0, 2});
    ChooseFile("first.QTH");
    QTest::mouseClick(Find<QPushButton>("Command7"), Qt::LeftButton);
    ChooseFile("first.QTH");
    Choose("MnuOpen");
    Mark({0, 1});
    ChooseFile("second.QTH");
    QTest::mouseClick(Find<QPushButton>("Command7"), Qt::LeftButton);
    EXPECT_EQ(Bytes(Path("first.QTH")), Bytes(Path("second.QTH")));
    EXPECT_EQ(Bytes(Path("second.QTH")).size(), 20U + 3 * 290U);
}

TEST_F(FileCommandsTest, MoveOutRemovesTheMarkedRecords)
{
    Mark({0, 2});
    ChooseFile("out.QTH");
    QTest::mouseClick(Find<QPushButton>("Command6"), Qt::LeftButton);
    EXPECT_EQ(Callsigns(), (Names{"QQ2B", "QQ4D"}));
    EXPECT_EQ(Lines(), 2);
    EXPECT_EQ(stations::ReadDatabase(Path("out.QTH")).database.Count(), 2U);
    EXPECT_EQ(stations::ReadDatabase(Path("WORK.QTH")).database.Count(), 2U);
    EXPECT_FALSE(Find<QPushButton>("Command6")->isEnabled()) << "the list was built anew";
}

TEST_F(FileCommandsTest, MoveOutKeepsEverythingWhenTheExportFails)
{
    Mark({0, 2});
    dialogs.files.push_back(folder.filePath(u"no such folder/out.QTH"_s));
    QTest::mouseClick(Find<QPushButton>("Command6"), Qt::LeftButton);
    EXPECT_EQ(Callsigns().size(), 4U);
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(
        dialogs.said[0],
        (Message{u"Schreibfehler"_s,
                 u"Das Schreiben auf die Datei "_s + folder.filePath(u"no such folder/out.QTH"_s)
                     + u" schlug fehl!\nBitte Schreibschutz überprüfen und ggf. "
                       u"rücksetzen!"_s}));
}

TEST_F(FileCommandsTest, OwnFilesAreNotWrittenOver)
{
    std::filesystem::create_symlink(Path("WORK.QTH"), Path("link.QTH"));
    for (const char* const own : {"WORK.QTH", "WORK.BAK", "KOMP_LOC.CFG", "link.QTH"}) {
        SCOPED_TRACE(own);
        const std::string before = Bytes(Path(own));
        for (const char* const button : {"Command7", "Command6"}) {
            Mark({0});
            dialogs.said.clear();
            ChooseFile(own);
            QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
            ASSERT_EQ(dialogs.said.size(), 1U);
            EXPECT_TRUE(dialogs.said[0].text.contains(QLatin1StringView(own)));
        }
        ChooseFile(own);
        Choose("MnuList");
        EXPECT_EQ(dialogs.said.size(), 2U);
        EXPECT_EQ(Bytes(Path(own)), before);
        EXPECT_EQ(Callsigns().size(), 4U);
    }
}

TEST_F(FileCommandsTest, ListingFollowsTheConfiguredLayout)
{
    state.database = {};
    state.database.Append(Record("QQ1A", 48.3125, 11.625));
    const std::string texts = "\tQQ1A\tName QQ1A\tOrt\t145.500\t\t2001.02.03-04:05:06\r\n";
    const struct {
        std::int16_t mode;
        std::string position;
    } cases[] = {
        {0, "  48.18.75\t  11.37.50"},
        {1, "48.31250000\t11.62500000"},
        {2, "32\t694620\t5354365"},
        {3, "JN58TH"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mode);
        state.configuration.listingMode = static_cast<stations::ListingMode>(c.mode);
        dialogs.answers = {true};
        ChooseFile("new.lst");
        Choose("MnuList");
        EXPECT_EQ(Bytes(Path("new.lst")), c.position + texts);
    }
    state.configuration.listingMode = stations::ListingMode::DegreeMinutes;
    QTest::mouseClick(Find<QAbstractButton>("Option2_1"), Qt::LeftButton);
    dialogs.answers = {true};
    ChooseFile("new.lst");
    Choose("MnuList");
    EXPECT_EQ(Bytes(Path("new.lst")), "  48.18'45\"\t  11.37'30\"" + texts);
}

TEST_F(FileCommandsTest, ListingAndImportAgree)
{
    state.database = {};
    state.database.Append(Record("QQ1A", -48.3125, 11.62512345));
    state.database.Append(Record("ÖÄ", 0.5, -0.25));
    state.configuration.listingMode = stations::ListingMode::Degrees;
    state.numberFormat = base::NumberFormat(",");
    ChooseFile("grad.txt");
    Choose("MnuList");
    ChooseFile("grad.txt");
    Choose("MnuTest");
    ASSERT_EQ(state.database.Count(), 4U);
    for (const std::size_t i : {0U, 1U}) {
        EXPECT_NEAR(state.database[i + 2].Latitude(), state.database[i].Latitude(), 5e-9);
        EXPECT_NEAR(state.database[i + 2].Longitude(), state.database[i].Longitude(), 5e-9);
        EXPECT_EQ(state.database[i + 2].Text(stations::Field::Callsign),
                  state.database[i].Text(stations::Field::Callsign));
    }
}

TEST_F(FileCommandsTest, ImportAppendsWritesAndTellsHowMany)
{
    WriteBytes("in.txt", "# Kopf\r\nFreising\t48,4\t11.7\r\n\r\n-33\tSüd\t18.4\r\n");
    ChooseFile("in.txt");
    Choose("MnuTest");
    ASSERT_EQ(state.database.Count(), 6U);
    const stations::StationTexts texts = stations::TextsOf(state.database[4]);
    EXPECT_EQ(texts.callsign, "Freising");
    EXPECT_EQ(texts.place, "Freising");
    EXPECT_EQ(texts.name + texts.frequency + texts.remark, "");
    EXPECT_TRUE(QRegularExpression(u"^\\d{4}\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d:\\d\\d$"_s)
                    .match(QString::fromStdString(texts.date))
                    .hasMatch());
    EXPECT_EQ(state.database[5].Position(),
              (geo::GeoPosition{.latitude = -33.0, .longitude = 18.4}));
    EXPECT_EQ(Lines(), 6);
    EXPECT_EQ(stations::ReadDatabase(Path("WORK.QTH")).database.Count(), 6U);
    auto* const notice = window.findChild<QWidget*>(u"Display"_s);
    ASSERT_NE(notice, nullptr);
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(notice->findChild<QLabel*>(u"Label1"_s)->text(), u"2 Einträge importiert!"_s);
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(FileCommandsTest, ImportTellsWhichLinesItSkipped)
{
    WriteBytes("in.txt", "A\t48\t11\r\nB\t48\r\n1\t2\r\nC\t91\t0\r\nD\t0\t361\r\n");
    ChooseFile("in.txt");
    Choose("MnuTest");
    EXPECT_EQ(state.database.Count(), 5U);
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0].text, u"1 Eintrag importiert!\n4 Zeilen wurden übersprungen:\nZeile "
                                    u"2: keine zwei Zahlen\nZeile 3: kein Text\n"
                                    u"Zeile 4: Breite über 90 Grad\n..."_s);
}

TEST_F(FileCommandsTest, ImportBeyondTheLimitImportsNothing)
{
    const stations::StationRecord record = Record("QQ5E");
    while (state.database.Count() < 24999) {
        state.database.Append(record);
    }
    WriteBytes("in.txt", "A\t48\t11\nB\t48\t11\n");
    ChooseFile("in.txt");
    Choose("MnuTest");
    EXPECT_EQ(state.database.Count(), 24999U);
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0], (Message{{}, kTooMany}));
}

TEST_F(FileCommandsTest, ImportNamesAFileThatCannotBeRead)
{
    ChooseFile("missing.txt");
    Choose("MnuTest");
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(dialogs.said[0].text.contains(u"missing.txt"_s));
    EXPECT_EQ(state.database.Count(), 4U);
}

}  // namespace
}  // namespace ui
