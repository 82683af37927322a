#include "ui/main/Display.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class DisplayTest : public testing::Test {
protected:
    // The timer's ticks without the waiting.
    void Tick(int count) const
    {
        display.Timer1->stop();
        for (int i = 0; i < count; ++i) {
            QMetaObject::invokeMethod(display.Timer1, "timeout", Qt::DirectConnection);
        }
    }

    Display display;
};

TEST_F(DisplayTest, ControlsCarryTheirNamesAndCaptions)
{
    EXPECT_EQ(display.objectName(), u"Display"_s);
    EXPECT_EQ(display.Label1->objectName(), u"Label1"_s);
    EXPECT_EQ(display.Command1->objectName(), u"Command1"_s);
    EXPECT_EQ(display.Command1->text(), u"schliessen"_s);
    EXPECT_EQ(display.Timer1->objectName(), u"Timer1"_s);
    EXPECT_EQ(display.Timer1->interval(), 10);
    EXPECT_FALSE(display.isVisible());
}

TEST_F(DisplayTest, HidesItselfAtTheHundredthTick)
{
    display.ShowMessage(u"Eintrag gespeichert!"_s);
    EXPECT_TRUE(display.isVisible());
    EXPECT_TRUE(display.Timer1->isActive());
    EXPECT_EQ(display.Label1->text(), u"Eintrag gespeichert!"_s);
    Tick(99);
    EXPECT_TRUE(display.isVisible());
    Tick(1);
    EXPECT_FALSE(display.isVisible());
}

TEST_F(DisplayTest, HidesItselfAboutASecondLater)
{
    display.ShowMessage(u"a"_s);
    QTest::qWait(500);
    EXPECT_TRUE(display.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !display.isVisible(); }, 5000));
    EXPECT_FALSE(display.Timer1->isActive()) << "the program does not wake for nothing";
}

TEST_F(DisplayTest, ShownAgainWithoutBeingLoadedItStays)
{
    display.ShowMessage(u"a"_s);
    Tick(100);
    display.show();
    Tick(40000);
    EXPECT_TRUE(display.isVisible()) << "neither later nor after the counter has gone round";
}

TEST_F(DisplayTest, EachMessageLoadsItAnew)
{
    display.ShowMessage(u"a"_s);
    Tick(60);
    display.ShowMessage(u"b"_s);
    Tick(99);
    EXPECT_TRUE(display.isVisible());
    Tick(1);
    EXPECT_FALSE(display.isVisible());
    display.ShowMessage(u"c"_s);
    EXPECT_TRUE(display.isVisible());
    Tick(100);
    EXPECT_FALSE(display.isVisible());
}

TEST_F(DisplayTest, SchliessenHidesItAtOnce)
{
    display.ShowMessage(u"a"_s);
    QTest::mouseClick(display.Command1, Qt::LeftButton);
    EXPECT_FALSE(display.isVisible());
}

TEST_F(DisplayTest, ShowsTextAsItStands)
{
    display.ShowMessage(u"<b>1</b> Eintrag"_s);
    EXPECT_EQ(display.Label1->textFormat(), Qt::PlainText);
}

class DisplayOfMainFormTest : public MainFormFixture {};

TEST_F(DisplayOfMainFormTest, LeavesTheFocusAndTheKeysToTheMainWindow)
{
    Field("Text15_0")->setFocus();
    Click("SA_0");
    auto* const display = window.findChild<Display*>();
    ASSERT_TRUE(display->isVisible());
    EXPECT_EQ(display->Label1->text(), u"Eintrag gespeichert!"_s);
    EXPECT_TRUE(display->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(display->isModal());
    QTest::mouseClick(Field("Text1_0"), Qt::LeftButton);
    QTest::keyClicks(Field("Text1_0"), u"JN58TH"_s);
    EXPECT_EQ(Text("Text2_0"), "11.625000") << "the user goes on working";
}

}  // namespace
}  // namespace ui
