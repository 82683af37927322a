#include <filesystem>

#include "ui/main/Display.h"
#include "ui/main/FileCommandsFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;

namespace fs = std::filesystem;

class ImportCommandTest : public FileCommandsFixture {
protected:
    void Import(const std::string& text)
    {
        dialogs.said.clear();
        WriteBytes("in.txt", text);
        ChooseFile("in.txt");
        Choose("MnuTest");
    }

    // What the notice window shows; empty while it is hidden.
    std::string Notice()
    {
        const auto* const notice = window.findChild<Display*>();
        return notice->isVisible() ? notice->Label1->text().toStdString() : "";
    }
};

TEST_F(ImportCommandTest, TheCountHidBehindTheBoxAboutSkippedLines)
{
    Import("A\t48\t11\nB\t48\nC\t48\t11\nD\t48\t11\n");
    EXPECT_EQ(dialogs.said, (Messages{{{},
                                       u"3 Einträge importiert!\n1 Zeile wurde übersprungen:\n"
                                       u"Zeile 2: keine zwei Zahlen"_s}}));
    EXPECT_EQ(Notice(), "") << "one window is enough";
    Import("1\t2\n");
    EXPECT_EQ(dialogs.said[0].text,
              u"0 Einträge importiert!\n1 Zeile wurde übersprungen:\nZeile 1: kein Text"_s);
}

TEST_F(ImportCommandTest, AnImportThatWasNotWrittenIsNotToldAsOne)
{
    fs::permissions(Path("WORK.QTH"), fs::perms(0444));
    Import("A\t48\t11\nB\t48\n");
    ASSERT_EQ(dialogs.said.size(), 2U);
    EXPECT_EQ(dialogs.said[0].title, u"Schreibfehler"_s);
    EXPECT_EQ(dialogs.said[1].text,
              u"1 Eintrag importiert, aber nicht gespeichert!\n1 Zeile wurde übersprungen:\n"
              u"Zeile 2: keine zwei Zahlen"_s);
    EXPECT_EQ(Notice(), "");
}

TEST_F(ImportCommandTest, TextsTooLongForARecordWereCutWithoutAWord)
{
    const std::string longText(118, 'x');  // twice and the date: one more than there is room for
    Import("# Kopf\nA\t48\t11\n" + longText + "\t48\t11\n" + longText.substr(1) + "\t48\t11\n");
    EXPECT_EQ(dialogs.said, (Messages{{{},
                                       u"3 Einträge importiert!\n1 Zeile wurde gekürzt:\n"
                                       u"Zeile 3: Text zu lang"_s}}));
    ASSERT_EQ(state.database.Count(), 7U) << "imported all the same";
    EXPECT_EQ(state.database[5].Text(stations::Field::Date).size(), 18U);
    EXPECT_EQ(Notice(), "");

    std::string many = "1\t2\n";
    for (int i = 0; i < 4; ++i) {
        many += longText + "\t48\t11\n";
    }
    Import(many);
    EXPECT_EQ(dialogs.said[0].text,
              u"4 Einträge importiert!\n1 Zeile wurde übersprungen:\nZeile 1: kein Text\n"
              u"4 Zeilen wurden gekürzt:\nZeile 2: Text zu lang\nZeile 3: Text zu lang\n"
              u"Zeile 4: Text zu lang\n..."_s);
}

TEST_F(ImportCommandTest, UmlautsOfLetterAndMarkBecameQuestionMarks)
{
    const char16_t utf16[] = u"\uFEFFMu\u0308nchen\t48\t11";
    const std::string texts[] = {
        "Mu\u0308nchen\t48\t11",
        {reinterpret_cast<const char*>(utf16), sizeof utf16 - sizeof utf16[0]},
    };
    for (const std::string& text : texts) {
        Import(text);
        const stations::StationRecord record = state.database[state.database.Count() - 1];
        EXPECT_EQ(record.Bytes(stations::Field::Callsign), "M\xFCnchen");
        EXPECT_EQ(record.Bytes(stations::Field::Place), "M\xFCnchen");
    }
}

}  // namespace
}  // namespace ui
