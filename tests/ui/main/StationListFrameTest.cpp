#include "ui/main/StationListFrame.h"

#include <QAction>
#include <QApplication>
#include <QSignalSpy>

#include "ui/main/MessageBar.h"
#include "ui/main/StationListFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class StationListFrameTest : public StationListFixture {
protected:
    std::string Caption() const { return list->title().toStdString(); }
    std::string FocusName() const { return window.focusWidget()->objectName().toStdString(); }
};

TEST_F(StationListFrameTest, ControlsCarryTheirNamesAndCaptions)
{
    EXPECT_EQ(list->objectName(), u"Frame1"_s);
    EXPECT_EQ(Caption(), "List");
    EXPECT_EQ(list->List1->objectName(), u"List1"_s);
    EXPECT_EQ(list->List1->selectionMode(), QAbstractItemView::ExtendedSelection);
    const struct {
        QPushButton* button;
        QString name;
        QString caption;
    } buttons[] = {
        {list->Command2, u"Command2"_s, u"schliessen"_s},
        {list->Command3, u"Command3"_s, u"Sortieren"_s},
        {list->Command6, u"Command6"_s, u"Auslagern"_s},
        {list->Command7, u"Command7"_s, u"Sichern"_s},
    };
    for (const auto& b : buttons) {
        EXPECT_EQ(b.button->objectName(), b.name);
        EXPECT_EQ(b.button->text(), b.caption);
        EXPECT_FALSE(b.button->icon().isNull()) << b.name.toStdString();
    }
}

TEST_F(StationListFrameTest, IsHiddenAtTheStartAndFilled)
{
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(state.list.mode, app::ListMode::Nop);
    EXPECT_EQ(Lines().size(), 5U);
    EXPECT_EQ(Lines().front(), "DL3C - Cara - Aalen");
    EXPECT_FALSE(list->Command6->isEnabled());
    EXPECT_FALSE(list->Command7->isEnabled());
}

TEST_F(StationListFrameTest, LadenOpensTheListForItsPanel)
{
    Click("Command1_0");
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(Caption(), "Station 1 Laden");
    EXPECT_EQ(state.list.mode, app::ListMode::Get);
    EXPECT_EQ(state.list.targetPanel, 0);
    EXPECT_TRUE(list->List1->hasFocus()) << "the arrow keys work at once";
    Click("Command1_1");
    EXPECT_EQ(Caption(), "Station 2 Laden");
    EXPECT_EQ(state.list.targetPanel, 1);
}

TEST_F(StationListFrameTest, RemoveOpensTheListForDeleting)
{
    Click("Command4_1");
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(Caption(), "remove => Station 2");
    EXPECT_EQ(state.list.mode, app::ListMode::Clear);
    EXPECT_EQ(state.list.targetPanel, 1);
    Click("Command4_0");
    EXPECT_EQ(Caption(), "remove => Station 1");
}

TEST_F(StationListFrameTest, SchliessenAndEscapeEndTheModeAndHideTheFrame)
{
    Click("Command1_0");
    QTest::mouseClick(list->Command2, Qt::LeftButton);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(state.list.mode, app::ListMode::Nop);
    Click("Command4_0");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(state.list.mode, app::ListMode::Nop);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(StationListFrameTest, ClosingGivesTheFocusBackToTheButtonThatOpenedTheList)
{
    for (const char* const opener : {"Command1_0", "Command4_0", "Command1_1", "Command4_1"}) {
        SCOPED_TRACE(opener);
        Click(opener);
        Press(Qt::Key_Escape);
        EXPECT_EQ(FocusName(), opener);
        Click(opener);
        QTest::mouseClick(list->Command2, Qt::LeftButton);
        EXPECT_EQ(FocusName(), opener);
    }
    const auto format = state.configuration.degreeFormat;
    QTest::keyClick(window.focusWidget(), Qt::Key_Right);
    EXPECT_EQ(state.configuration.degreeFormat, format) << "an arrow key changes no setting";
}

TEST_F(StationListFrameTest, ClosingAfterADeletionGivesTheFocusBackToRemove)
{
    Click("Command4_1");
    ClickLine(1);
    Press(Qt::Key_Escape);
    EXPECT_EQ(FocusName(), "Command4_1");
}

TEST_F(StationListFrameTest, ClosingAListOpenedByACommandGivesTheFocusBackToWhereItWas)
{
    const struct {
        const char* before;
        const char* after;
    } cases[] = {
        {"Option2_0", "Command1_0"},
        {"Text5_1", "Text5_1"},
        {"Command5", "Command5"},
        {"Option2_0", "Command5"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before);
        Find<QWidget>(c.before)->setFocus();
        Find<QAction>("MnuDopMark")->trigger();
        ASSERT_TRUE(list->isVisible());
        list->List1->setFocus();
        Press(Qt::Key_Escape);
        EXPECT_EQ(FocusName(), c.after);
    }
    Click("Command4_0");
    Find<QAction>("MnuDopMark")->trigger();
    Press(Qt::Key_Escape);
    EXPECT_EQ(FocusName(), "Command4_0") << "it was open already";
}

TEST_F(StationListFrameTest, ClosingFocusesNoOtherFieldOnTheWay)
{
    Click("Command1_0");
    state.entry.activeGroup = app::EntryGroup::None;
    const QSignalSpy changes(qApp, &QApplication::focusChanged);
    Press(Qt::Key_Escape);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::None);
}

TEST_F(StationListFrameTest, AClickLoadsTheRecordIntoTheTargetPanel)
{
    const std::string other = Text("Text14_0");
    Click("Command1_1");
    ClickLine(4);
    EXPECT_EQ(Text("Text14_1"), "DL4D");
    EXPECT_EQ(Text("Text15_1"), "Berta");
    EXPECT_EQ(Text("Text16_1"), "Dachau");
    EXPECT_EQ(Text("Text17_1"), "145.200");
    EXPECT_EQ(Text("Text18_1"), "c");
    EXPECT_EQ(Text("Text19_1"), "2020.01.01");
    EXPECT_EQ(Text("Text2_1"), "11.4");
    EXPECT_EQ(Text("Text3_1"), "48.3");
    EXPECT_EQ(Text("Text1_1"), "JN58QH") << "the other forms follow";
    EXPECT_EQ(state.shown.position[1], (geo::GeoPosition{.latitude = 48.3, .longitude = 11.4}));
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Decimal);
    EXPECT_EQ(Text("Text14_0"), other);
    EXPECT_EQ(state.list.mode, app::ListMode::Get) << "and the list stays open for the next";
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(Saved(), "DL3C DL1A DL5E DL2B DL4D ");
}

TEST_F(StationListFrameTest, ReturnLoadsTheCurrentRecord)
{
    Click("Command1_0");
    QTest::keyClicks(list->List1, u"dl2"_s);
    EXPECT_EQ(Text("Text14_0"), "QQ0AAA") << "searching loads nothing";
    Press(Qt::Key_Return);
    EXPECT_EQ(Text("Text14_0"), "DL2B");
}

TEST_F(StationListFrameTest, CtrlClickLoadsNothing)
{
    Click("Command1_0");
    ClickLine(1, Qt::ControlModifier);
    ClickLine(2, Qt::ShiftModifier);
    EXPECT_EQ(Text("Text14_0"), "QQ0AAA");
}

TEST_F(StationListFrameTest, AClickInModeClearLoadsDeletesAndGoesOnLoading)
{
    const QSignalSpy changes(&window, &MainForm::Changed);
    Click("Command4_0");
    ClickLine(1);
    EXPECT_EQ(Text("Text14_0"), "DL1A") << "the panel holds the deleted station";
    EXPECT_EQ(Text("Text15_0"), "Emil");
    EXPECT_EQ(Text("Text3_0"), "50.7");
    EXPECT_EQ(Held(), "DL3C DL5E DL2B DL4D ");
    EXPECT_EQ(Saved(), "DL3C DL5E DL2B DL4D ");
    EXPECT_EQ(Lines().size(), 4U);
    EXPECT_EQ(Lines()[1], "DL5E - Anna - Celle");
    EXPECT_EQ(Marked(), Rows{});
    EXPECT_EQ(state.list.mode, app::ListMode::Get) << "a deletion does not stay in delete mode";
    EXPECT_EQ(Caption(), "Station 1 Laden");
    EXPECT_GE(changes.count(), 1);
    ClickLine(0);
    EXPECT_EQ(Held(), "DL3C DL5E DL2B DL4D ");
    EXPECT_EQ(Text("Text14_0"), "DL3C");
}

TEST_F(StationListFrameTest, ADoubleClickInModeClearDeletesOneRecordAndLoadsNoOther)
{
    Click("Command4_0");
    DoubleClickLine(1);
    EXPECT_EQ(Held(), "DL3C DL5E DL2B DL4D ");
    EXPECT_EQ(Text("Text14_0"), "DL1A") << "not the one that moved under the mouse";
}

TEST_F(StationListFrameTest, ReturnInModeClearDeletesOnce)
{
    Click("Command4_1");
    Press(Qt::Key_Return);
    EXPECT_EQ(state.database.Count(), 5U) << "no line is current yet";
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(Held(), "DL3C DL5E DL2B DL4D ");
    EXPECT_EQ(Text("Text14_1"), "DL1A");
}

TEST_F(StationListFrameTest, TheLastRecordLeavesAnEmptyListAndItsSpareInTheFile)
{
    for (int left = 5; left > 0; --left) {
        Click("Command4_0");
        ClickLine(0);
        EXPECT_EQ(state.database.Count(), static_cast<std::size_t>(left - 1));
    }
    EXPECT_EQ(Lines(), Texts{});
    EXPECT_EQ(GetFile("WORK.QTH").size(), 310U);
    Click("Command4_0");
    QTest::mouseClick(list->List1->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    Press(Qt::Key_Return);
    EXPECT_EQ(state.list.mode, app::ListMode::Clear) << "no click has an effect";
}

TEST_F(StationListFrameTest, AClickInModeNopDoesNothing)
{
    Click("Command1_0");
    state.list.mode = app::ListMode::Nop;
    ClickLine(2);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text("Text14_0"), "QQ0AAA");
    EXPECT_EQ(Held(), "DL3C DL1A DL5E DL2B DL4D ");
    EXPECT_EQ(Marked(), Rows{2}) << "but mark";
}

TEST_F(StationListFrameTest, ADeletionThatCannotBeWrittenIsTold)
{
    ASSERT_TRUE(QFile::setPermissions(u"WORK.QTH"_s, QFile::ReadOwner));
    Click("Command4_0");
    ClickLine(0);
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0].title, u"Schreibfehler"_s);
    EXPECT_EQ(Held(), "DL1A DL5E DL2B DL4D ") << "the database in memory stays as it is";
    EXPECT_EQ(Lines().size(), 4U);
    EXPECT_EQ(Saved(), "DL3C DL1A DL5E DL2B DL4D ");
}

TEST_F(StationListFrameTest, AChangeIsShownThenWrittenThenAnnounced)
{
    Texts steps;
    QObject::connect(list->List1->model(), &QAbstractItemModel::modelReset, list,
                     [&] { steps.push_back("shown, still on the disk: " + Saved()); });
    QObject::connect(&window, &MainForm::Changed, list,
                     [&] { steps.push_back("announced, on the disk: " + Saved()); });
    state.database.Truncate(2);
    EXPECT_FALSE(window.TakeDatabaseChange());
    EXPECT_EQ(steps, (Texts{"shown, still on the disk: DL3C DL1A DL5E DL2B DL4D ",
                            "announced, on the disk: DL3C DL1A "}));
}

TEST_F(StationListFrameTest, AChangeThatCannotBeWrittenIsAnnouncedAndItsErrorHandedBack)
{
    ASSERT_TRUE(QFile::setPermissions(u"WORK.QTH"_s, QFile::ReadOwner));
    const QSignalSpy changes(&window, &MainForm::Changed);
    EXPECT_TRUE(window.TakeDatabaseChange());
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(dialogs.said.empty()) << "whoever changed the database tells";
}

TEST_F(StationListFrameTest, WhatWasSetAsideAtAWriteIsTold)
{
    state.session.workingFileBytes = base::OldBytes::Unknown;
    Click("SA_0");
    EXPECT_EQ(window.findChild<MessageBar*>()->Messages(),
              (QStringList{u"Die alten Bytes der Datei WORK.QTH liegen jetzt in WORK.QTH.ALT."_s,
                           u"Die alten Bytes der Datei WORK.BAK liegen jetzt in WORK.BAK.ALT."_s}));
    Click("SA_1");
    EXPECT_EQ(window.findChild<MessageBar*>()->Messages().size(), 2) << "once";
}

TEST_F(StationListFrameTest, MarkedLinesEnableTheirButtonsUntilTheNextFill)
{
    const auto enabled = [this] {
        EXPECT_EQ(list->Command6->isEnabled(), list->Command7->isEnabled());
        return list->Command6->isEnabled();
    };
    Click("Command1_0");
    EXPECT_FALSE(enabled());
    ClickLine(0, Qt::ControlModifier);
    EXPECT_TRUE(enabled());
    Click("Command1_1");
    EXPECT_FALSE(enabled()) << "filled anew";
    ClickLine(3);
    EXPECT_TRUE(enabled());
    Click("SA_0");
    EXPECT_FALSE(enabled());
    Press(Qt::Key_Down);
    EXPECT_TRUE(enabled()) << "marked by a key";
    window.TakeDatabaseChange();
    EXPECT_FALSE(enabled());
    list->ShowMarks({0, 2});
    EXPECT_TRUE(enabled()) << "marked by a command";
}

TEST_F(StationListFrameTest, List1CheckFillsOnlyWhenTheNumberOfLinesIsWrong)
{
    const QSignalSpy fills(list->List1->model(), &QAbstractItemModel::modelReset);
    list->List1Check();
    EXPECT_EQ(fills.count(), 0);
    ASSERT_TRUE(state.database.Append(stations::MakeRecord({"NEW"})));
    list->List1Check();
    EXPECT_EQ(fills.count(), 1);
    EXPECT_EQ(Lines().back(), "NEW -  - ");
}

}  // namespace
}  // namespace ui
