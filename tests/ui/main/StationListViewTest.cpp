#include "ui/main/StationListView.h"

#include <chrono>

#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>

#include "ui/main/StationListFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// What the list box itself does with mouse and keys; the frame is open for loading.
class StationListViewTest : public StationListFixture {
protected:
    void SetUp() override
    {
        StationListFixture::SetUp();
        list->Show(app::ListMode::Get, 0);
        chosen = std::make_unique<QSignalSpy>(list->List1, &StationListView::LineChosen);
    }

    Rows Chosen() const
    {
        Rows rows;
        for (const QList<QVariant>& arguments : *chosen) {
            rows.push_back(arguments.at(0).toInt());
        }
        return rows;
    }

    std::unique_ptr<QSignalSpy> chosen;
};

TEST_F(StationListViewTest, APlainClickMarksAndChoosesItsLine)
{
    ClickLine(1);
    EXPECT_EQ(Chosen(), Rows{1});
    EXPECT_EQ(Marked(), Rows{1});
    ClickLine(1);
    EXPECT_EQ(Chosen(), (Rows{1, 1})) << "as often as it is clicked";
    ClickLine(4);
    EXPECT_EQ(Chosen(), (Rows{1, 1, 4}));
    EXPECT_EQ(Marked(), Rows{4});
}

TEST_F(StationListViewTest, CtrlAndShiftClicksOnlyMark)
{
    ClickLine(0, Qt::ControlModifier);
    ClickLine(3, Qt::ControlModifier);
    EXPECT_EQ(Marked(), (Rows{0, 3}));
    ClickLine(0, Qt::ControlModifier);
    EXPECT_EQ(Marked(), Rows{3}) << "a second one takes the mark away";
    list->List1->MarkRows({});
    ClickLine(1, Qt::ControlModifier);
    ClickLine(3, Qt::ShiftModifier);
    EXPECT_EQ(Marked(), (Rows{1, 2, 3}));
    EXPECT_EQ(Chosen(), Rows{});
}

TEST_F(StationListViewTest, OtherButtonsChooseNothing)
{
    QTest::mouseClick(list->List1->viewport(), Qt::RightButton, {}, PointOn(2));
    QTest::mouseClick(list->List1->viewport(), Qt::MiddleButton, {}, PointOn(3));
    EXPECT_EQ(Chosen(), Rows{});
}

TEST_F(StationListViewTest, AClickBelowTheLastLineChoosesNothing)
{
    const QPoint below(5, list->List1->viewport()->height() - 2);
    ASSERT_FALSE(list->List1->indexAt(below).isValid());
    QTest::mouseClick(list->List1->viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(Chosen(), Rows{});
    EXPECT_EQ(Marked(), Rows{});
}

TEST_F(StationListViewTest, DraggingMarksEveryLineOnItsWayAndChoosesNone)
{
    QWidget* const viewport = list->List1->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, PointOn(1));
    for (const int row : {2, 3}) {
        QTest::mouseMove(viewport, PointOn(row));
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, PointOn(3));
    EXPECT_EQ(Marked(), (Rows{1, 2, 3}));
    EXPECT_EQ(Chosen(), Rows{});
}

TEST_F(StationListViewTest, DraggingAwayAndBackChoosesNone)
{
    QWidget* const viewport = list->List1->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, PointOn(1));
    QTest::mouseMove(viewport, PointOn(3));
    QTest::mouseMove(viewport, PointOn(1));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, PointOn(1));
    EXPECT_EQ(Chosen(), Rows{});
}

TEST_F(StationListViewTest, AShakyClickWithinOneLineStillChooses)
{
    QWidget* const viewport = list->List1->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, PointOn(1));
    QTest::mouseMove(viewport, PointOn(1) + QPoint(3, 1));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, PointOn(1) + QPoint(3, 1));
    EXPECT_EQ(Chosen(), Rows{1});
}

TEST_F(StationListViewTest, ADoubleClickChoosesOnce)
{
    DoubleClickLine(2);
    EXPECT_EQ(Chosen(), Rows{2});
}

TEST_F(StationListViewTest, ReturnChoosesNoLineThatNobodyWentTo)
{
    EXPECT_EQ(CurrentRow(), -1);
    Press(Qt::Key_Return);
    EXPECT_EQ(Chosen(), Rows{});
}

TEST_F(StationListViewTest, ReturnAndEnterChooseTheCurrentLine)
{
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(Chosen(), Rows{}) << "arrow keys only move";
    Press(Qt::Key_Return);
    EXPECT_EQ(Chosen(), Rows{1});
    Press(Qt::Key_Up);
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Chosen(), (Rows{1, 0}));
}

TEST_F(StationListViewTest, ArrowKeysMoveAndMarkWithoutChoosing)
{
    Press(Qt::Key_Down);
    EXPECT_EQ(CurrentRow(), 0);
    EXPECT_EQ(Marked(), Rows{0});
    Press(Qt::Key_Down);
    EXPECT_EQ(CurrentRow(), 1);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Marked(), (Rows{1, 2}));
    Press(Qt::Key_End);
    EXPECT_EQ(Marked(), Rows{4});
    Press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(Marked(), (Rows{0, 1, 2, 3, 4}));
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Marked(), (Rows{0, 1, 2, 3, 4}));
    EXPECT_EQ(Chosen(), Rows{});
}

TEST_F(StationListViewTest, TypingSearchesForTheBeginningOfALine)
{
    QTest::keyClicks(list->List1, u"dl4"_s);
    EXPECT_EQ(CurrentRow(), 4);
    EXPECT_EQ(Chosen(), Rows{});
    Press(Qt::Key_Return);
    EXPECT_EQ(Chosen(), Rows{4});
}

TEST_F(StationListViewTest, EscapeIsAnnounced)
{
    QSignalSpy escaped(list->List1, &StationListView::EscapePressed);
    Press(Qt::Key_Escape);
    EXPECT_EQ(escaped.count(), 1);
}

TEST_F(StationListViewTest, MarkedRowsAreWhatIsMarked)
{
    list->List1->MarkRows({0, 1, 4});
    EXPECT_EQ(list->List1->MarkedRows(), (std::vector<std::size_t>{0, 1, 4}));
    EXPECT_TRUE(list->List1->IsMarked(4));
    EXPECT_FALSE(list->List1->IsMarked(2));
    EXPECT_FALSE(list->List1->IsMarked(5)) << "there is no such line";
    ClickLine(0, Qt::ControlModifier);
    EXPECT_EQ(list->List1->MarkedRows(), (std::vector<std::size_t>{1, 4}));
    list->List1->MarkRows({});
    EXPECT_TRUE(list->List1->MarkedRows().empty());
}

TEST_F(StationListViewTest, AFillTakesEveryMarkAway)
{
    list->List1->MarkRows({0, 1, 4});
    ASSERT_TRUE(list->List1->IsMarked(4));
    window.TakeDatabaseChange();
    EXPECT_FALSE(list->List1->IsMarked(4));
    EXPECT_EQ(CurrentRow(), -1);
    Press(Qt::Key_Return);
    EXPECT_EQ(Chosen(), Rows{}) << "no line is current";
}

TEST_F(StationListViewTest, LongLinesAreScrolledNotCut)
{
    EXPECT_FALSE(list->List1->horizontalScrollBar()->isVisible());
    const std::string name(120, 'W');
    ASSERT_TRUE(state.database.Append(stations::MakeRecord({"DL9Z", name, "Ort"})));
    window.TakeDatabaseChange();
    QCoreApplication::processEvents();
    EXPECT_TRUE(list->List1->horizontalScrollBar()->isVisible());
    const int lineWidth = list->List1->fontMetrics().horizontalAdvance(
        QString::fromStdString("DL9Z - " + name + " - Ort"));
    EXPECT_GE(list->List1->visualRect(list->List1->model()->index(5, 0)).width(), lineWidth);
}

TEST_F(StationListViewTest, ALineOfFewWideLettersIsNotCutEither)
{
    const std::string wide(100, 'W');
    ASSERT_TRUE(state.database.Append(stations::MakeRecord({std::string(200, 'i')})));
    ASSERT_TRUE(state.database.Append(stations::MakeRecord({wide})));
    window.TakeDatabaseChange();
    list->List1->scrollToBottom();
    list->List1->repaint();
    QCoreApplication::processEvents();
    const int lineWidth =
        list->List1->fontMetrics().horizontalAdvance(QString::fromStdString(wide + " -  - "));
    EXPECT_GT(list->List1->visualRect(list->List1->model()->index(6, 0)).width(), lineWidth);
}

// Ways by which the focus leaves the list and comes back.
class ReturnToTheListTest : public StationListViewTest {
protected:
    void OpenAndCloseAMenu()
    {
        QMenuBar& bar = *window.menuBar();
        QAction* const title = bar.actions().front();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(title).center());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(title->menu()));
        QTest::keyClick(title->menu(), Qt::Key_Escape);
        QTest::keyClick(&bar, Qt::Key_Escape);
    }

    void GoToAnotherWindowAndBack()
    {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void TabAwayAndBack()
    {
        Press(Qt::Key_Tab);
        ASSERT_FALSE(list->List1->hasFocus());
        QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
    }

    void LeaveByEveryWay()
    {
        const struct {
            const char* name;
            void (ReturnToTheListTest::*go)();
        } ways[] = {
            {"menu", &ReturnToTheListTest::OpenAndCloseAMenu},
            {"window", &ReturnToTheListTest::GoToAnotherWindowAndBack},
            {"tab", &ReturnToTheListTest::TabAwayAndBack},
        };
        for (const auto& way : ways) {
            SCOPED_TRACE(way.name);
            (this->*way.go)();
            EXPECT_TRUE(list->List1->hasFocus());
            EXPECT_EQ(Marked(), marks) << "a return is no click";
            EXPECT_EQ(CurrentRow(), -1) << "nor does it go to a line";
            Press(Qt::Key_Return);
            EXPECT_EQ(Chosen(), Rows{});
        }
    }

    Rows marks;
};

TEST_F(ReturnToTheListTest, LeavesEveryMarkOfCtrlAInPlace)
{
    Press(Qt::Key_A, Qt::ControlModifier);
    marks = {0, 1, 2, 3, 4};
    ASSERT_EQ(Marked(), marks);
    LeaveByEveryWay();
}

TEST_F(ReturnToTheListTest, LeavesAnUnmarkedListUnmarked)
{
    LeaveByEveryWay();
    OpenAndCloseAMenu();
    Press(Qt::Key_End);
    EXPECT_EQ(Marked(), Rows{4}) << "the far keys still go as far as they should";
}

TEST_F(ReturnToTheListTest, LeavesTheMarksOfACommandInPlace)
{
    list->ShowMarks({1, 3});
    for (int i = 0; i < 2; ++i) {
        OpenAndCloseAMenu();
        GoToAnotherWindowAndBack();
        TabAwayAndBack();
        EXPECT_EQ(Marked(), (Rows{1, 3}));
    }
}

TEST_F(StationListViewTest, OnlyKeysThatMarkEndTheMarks)
{
    Press(Qt::Key_A, Qt::ControlModifier);
    const struct {
        int key;
        Qt::KeyboardModifiers modifiers;
    } others[] = {
        {Qt::Key_Return, {}},
        {Qt::Key_F5, {}},
        {Qt::Key_Insert, {}},
        {Qt::Key_Delete, {}},
        {Qt::Key_Shift, Qt::ShiftModifier},
        {Qt::Key_Control, Qt::ControlModifier},
        {Qt::Key_Down, Qt::ControlModifier},
        {Qt::Key_End, Qt::ControlModifier},
        {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_X, Qt::AltModifier},
        {Qt::Key_D, Qt::AltModifier},
        {Qt::Key_D, Qt::MetaModifier},
    };
    for (const auto& other : others) {
        SCOPED_TRACE(other.key);
        Press(other.key, other.modifiers);
        EXPECT_EQ(Marked(), (Rows{0, 1, 2, 3, 4}));
    }
    Press(Qt::Key_Up);
    EXPECT_EQ(Marked().size(), 1U);
}

class FullStationListTest : public StationListViewTest {
protected:
    stations::StationDatabase Stations() const override
    {
        return stations::CountedDatabase(stations::kMaxRecords);
    }
};

TEST_F(FullStationListTest, EveryLineIsThereAndWithinReach)
{
    EXPECT_EQ(list->List1->model()->rowCount(), 25000);
    Press(Qt::Key_End);
    EXPECT_EQ(CurrentRow(), 24999);
    Press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(list->List1->MarkedRows().size(), 25000U);
    QTest::keyClicks(list->List1, u"24998"_s);
    EXPECT_EQ(CurrentRow(), 24998);
    ClickLine(24990);
    EXPECT_EQ(Chosen(), Rows{24990});
}

TEST_F(FullStationListTest, AskingForTheMarksOfEveryLineTakesNoTimePerRange)
{
    std::vector<std::size_t> everyOther;
    for (std::size_t row = 0; row < stations::kMaxRecords; row += 2) {
        everyOther.push_back(row);
    }
    list->List1->MarkRows(everyOther);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(list->List1->MarkedRows(), everyOther);
    // 25000 lines times 12500 ranges take minutes, one pass takes milliseconds.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

}  // namespace
}  // namespace ui
