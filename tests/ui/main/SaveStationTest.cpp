#include <cmath>
#include <limits>

#include <QClipboard>
#include <QGuiApplication>
#include <QListView>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "stations/Records.h"
#include "ui/main/Display.h"
#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;

const Message kNoPosition = {
    {},
    u"Die Koordinaten von Station 1 ergeben keine Position, der Eintrag wird nicht gesichert!"_s};

Message Question(const QString& fields)
{
    return {u"Sichern"_s,
            u"Die Texte von Station 1 sind zusammen zu lang für einen Eintrag. Gekürzt oder "
            u"weggelassen:\n"_s
                + fields + u"\nTrotzdem sichern?"_s};
}

// Buttons "Sichern" of the panels.
class SaveStationTest : public MainFormFixture {
protected:
    // Puts a text into the field the way a user does who has it in the clipboard.
    void Paste(const char* name, const QString& text)
    {
        Type(name, u""_s);
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(Field(name), Qt::Key_V, Qt::ControlModifier);
    }

    bool NoticeShown() { return window.findChild<Display*>()->isVisible(); }

    // That "Sichern" of Station 1 stores nothing and says this.
    void ExpectNotStored(const Message& message)
    {
        dialogs.said.clear();
        dialogs.parents.clear();
        const std::string before = GetFile("WORK.QTH");
        const std::size_t count = state.database.Count();
        Click("SA_0");
        EXPECT_EQ(dialogs.said, Messages{message});
        EXPECT_EQ(dialogs.parents, std::vector<const QWidget*>{&window});
        EXPECT_EQ(state.database.Count(), count);
        EXPECT_EQ(GetFile("WORK.QTH"), before);
        EXPECT_FALSE(NoticeShown());
    }
};

TEST_F(SaveStationTest, APositionWithoutAFiniteResultWasSaved)
{
    Type("Text21_0", QString(60, u'9'));
    ASSERT_FALSE(std::isfinite(state.shown.position[0].latitude)
                 && std::isfinite(state.shown.position[0].longitude));
    ExpectNotStored(kNoPosition);
    Type("Text1_0", u"JN58TH"_s);
    Click("SA_0");
    EXPECT_EQ(state.database.Count(), 1U) << "as soon as there is one";
    EXPECT_TRUE(NoticeShown());
}

TEST_F(SaveStationTest, TheEndOfARunStoresAPositionWithoutAFiniteResultAsItIs)
{
    Type("Text21_0", QString(60, u'9'));
    window.close();
    EXPECT_TRUE(dialogs.said.empty());
    ProgramRun next;
    ASSERT_TRUE(next.Start());
    EXPECT_FALSE(std::isfinite(next.state.configuration.station1.Latitude())
                 && std::isfinite(next.state.configuration.station1.Longitude()));
}

TEST_F(SaveStationTest, TextsTogetherTooLongWereCutWithoutAWord)
{
    Type("Text19_0", u""_s);
    Paste("Text18_0", QString(240, u'a'));
    const Message question = Question(u"Anmerkung, Datum"_s);
    ExpectNotStored(question);

    dialogs.said.clear();
    dialogs.answers = {true};
    Click("SA_0");
    EXPECT_EQ(dialogs.said, Messages{question});
    ASSERT_EQ(state.database.Count(), 1U);
    EXPECT_EQ(state.database[0].Bytes(stations::Field::Remark).size(),
              254U - std::string("QQ0AAAMusterMusterdorf").size());
    EXPECT_EQ(GetFile("WORK.QTH"), app::DatabaseFile({state.database[0]}));
    EXPECT_TRUE(NoticeShown());
}

TEST_F(SaveStationTest, TheQuestionNamesTheFields)
{
    Paste("Text14_0", QString(300, u'c'));
    Type("Text17_0", u"145.500"_s);
    Type("Text18_0", u"Anm"_s);
    ExpectNotStored(Question(u"Rufzeichen, Name, Ort, Frequenz, Anmerkung, Datum"_s));
    Paste("Text14_0", QString(254, u'c'));
    ExpectNotStored(Question(u"Name, Ort, Frequenz, Anmerkung, Datum"_s));
    // Only the date that is filled in while saving has no room.
    const int room = 254 - 6 - 10 - 7 - 3;
    Paste("Text14_0", QString(room - 18, u'c'));
    ExpectNotStored(Question(u"Datum"_s));
    Paste("Text14_0", QString(room - 19, u'ä'));
    dialogs.said.clear();
    Click("SA_0");
    ASSERT_TRUE(dialogs.said.empty()) << "all of it has room";
    EXPECT_EQ(state.database[0].Text(stations::Field::Date).size(), 19U);
}

TEST_F(SaveStationTest, ARecordThatHasNoRoomInTheDatabaseIsNotAskedAbout)
{
    while (state.database.Count() < stations::kMaxRecords) {
        state.database.Append(stations::EmptyRecord());
    }
    Paste("Text18_0", QString(300, u'a'));
    Click("SA_0");
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(dialogs.said[0].text.startsWith(u"Fehler: Zu viele Datensätze."_s));
}

TEST_F(SaveStationTest, TheEndOfARunCutsTextsWithoutAQuestion)
{
    Paste("Text18_0", QString(300, u'a'));
    window.close();
    EXPECT_TRUE(dialogs.said.empty());
    ProgramRun next;
    ASSERT_TRUE(next.Start());
    EXPECT_EQ(next.Text("Text18_0").size(), 254U - std::string("QQ0AAAMusterMusterdorf").size());
}

TEST_F(SaveStationTest, UmlautsOfLetterAndMarkBecameQuestionMarks)
{
    const char* const fields[] = {"Text14_0", "Text15_0", "Text16_0",
                                  "Text17_0", "Text18_0", "Text19_0"};
    for (const char* const field : fields) {
        Paste(field, u"Mu\u0308nchen"_s);
    }
    Click("SA_0");
    ASSERT_EQ(state.database.Count(), 1U);
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        EXPECT_EQ(state.database[0].Bytes(static_cast<stations::Field>(i)), "M\xFCnchen");
    }
    window.close();
    ProgramRun next;
    ASSERT_TRUE(next.Start());
    for (const char* const field : fields) {
        EXPECT_EQ(next.Text(field), "M\u00fcnchen");
    }
}

// A database with a record that an older version stored without a finite position.
class LoadedStationTest : public SaveStationTest {
protected:
    void PrepareFolder() override
    {
        constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
        PutFile("WORK.QTH", app::DatabaseFile({stations::MakeRecord({"A"}, {kNan, kNan}),
                                               stations::MakeRecord({"B"}, {48.0, 11.0})}));
    }
};

TEST_F(LoadedStationTest, AMeanWithAPositionThatIsNoneIsNotStored)
{
    Click("Command1_0");
    auto* const list = Find<QListView>("List1");
    for (const int row : {0, 1}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualRect(list->model()->index(row, 0)).center());
    }
    Find<QAction>("MnuMiWert")->trigger();
    ASSERT_EQ(Text("Text14_0"), "MIWERT");
    ExpectNotStored(kNoPosition);
}

}  // namespace
}  // namespace ui
