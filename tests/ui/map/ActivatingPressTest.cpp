#include "ui/map/ActivatingPress.h"

#include "ui/map/GformFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

constexpr int kLongerThanAMoment = static_cast<int>(ActivatingPress::kMoment) + 50;

// A scrolled map with a route of two points, and clicks that set Station 1.
class ActivatingPressTest : public GformFixture {
protected:
    void SetUp() override
    {
        Open(480, 320);
        LoadMap(MapFile(1000, 800));
        form->pane->HScroll1->setValue(300);
        form->pane->VScroll1->setValue(200);
        Choose("MnuRouS");
        ClickAt(10, 10);
        ClickAt(20, 20);
        Choose("MnuSet1");
        mainWindow.calls.clear();
    }

    // The events as most window systems send them: the activation, then what follows.
    void Activate() const
    {
        QEvent left(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(form.get(), &left);
        QEvent back(QEvent::WindowActivate);
        QCoreApplication::sendEvent(form.get(), &back);
    }

    // Another window has the activation while `act` goes on.
    template <typename Act>
    void WhileAway(Act act) const
    {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        act();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    QPoint Clip() const { return {form->pane->HScroll1->value(), form->pane->VScroll1->value()}; }

    // Choosing the item asks whether there is a route.
    bool RouteIsEmpty() const
    {
        Choose("MnuRouF");
        return state.map.clickMode == app::ClickMode::RouteStart;
    }
};

TEST_F(ActivatingPressTest, ActsOnThePixelThatWasShownUnderIt)
{
    Activate();
    ClickAt(50, 60);
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 350 260");
    EXPECT_EQ(Clip(), QPoint(300, 200));
    EXPECT_TRUE(RouteIsEmpty());
}

TEST_F(ActivatingPressTest, ActsOnThePixelThatWasShownUnderItWhenTheActivationComesBehind)
{
    WhileAway(
        [this] { QTest::mousePress(form->pane->Picture1, Qt::LeftButton, {}, QPoint(50, 60)); });
    QTest::mouseRelease(form->pane->Picture1, Qt::LeftButton, {}, QPoint(50, 60));
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 350 260");
    EXPECT_EQ(Clip(), QPoint(300, 200));
    EXPECT_EQ(mainWindow.calls,
              (std::vector<std::string>{"S1S2_Update", "SetStation", "S1S2_Update"}));
    EXPECT_TRUE(RouteIsEmpty());
}

TEST_F(ActivatingPressTest, BeginsANewRouteInEitherOrder)
{
    Choose("MnuRouS");
    Activate();
    ClickAt(50, 60);
    EXPECT_FALSE(RouteIsEmpty());
    const QImage one = Picture();
    Choose("MnuRouS");
    WhileAway([this] { ClickAt(50, 60); });
    EXPECT_EQ(Clip(), QPoint(300, 200));
    EXPECT_FALSE(RouteIsEmpty()) << "the click came first, and counts";
    EXPECT_EQ(Picture(), one) << "without the points before";
}

TEST_F(ActivatingPressTest, AnyOtherActivationShowsTheUpperLeftCorner)
{
    Activate();
    EXPECT_EQ(Clip(), QPoint(0, 0));
    QTest::qWait(kLongerThanAMoment);
    ClickAt(50, 60);
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 50 60") << "aimed at what is shown now";
    EXPECT_EQ(Clip(), QPoint(0, 0));
    EXPECT_TRUE(RouteIsEmpty());
}

TEST_F(ActivatingPressTest, APressWithoutActivationDoesNotCountForALaterOne)
{
    WhileAway([this] {
        ClickAt(50, 60);
        QTest::qWait(kLongerThanAMoment);
    });
    EXPECT_EQ(Clip(), QPoint(0, 0));
    EXPECT_TRUE(RouteIsEmpty());
}

TEST_F(ActivatingPressTest, WhatScrollsOrIsChosenAfterTheActivationCounts)
{
    Activate();
    form->pane->HScroll1->setValue(40);
    ClickAt(50, 60);
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 90 60");
    Activate();
    Choose("MnuSet2");
    ClickAt(50, 60);
    EXPECT_EQ(mainWindow.panel[1].place, "X/Y: 50 60");
}

TEST_F(ActivatingPressTest, OnlyTheFirstPressIsTheActivatingOne)
{
    Activate();
    ClickAt(50, 60);
    form->pane->HScroll1->setValue(0);
    form->pane->VScroll1->setValue(0);
    ClickAt(50, 60);
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 50 60");
}

}  // namespace
}  // namespace ui
