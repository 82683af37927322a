#include "ui/main/MessageBar.h"

#include <QLabel>
#include <QToolButton>

#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class MessageBarTest : public MainFormFixture {
protected:
    MessageBar& Bar() { return *Find<MessageBar>("MessageBar"); }
    void CloseIt() { QTest::mouseClick(Find<QToolButton>("CloseMessage"), Qt::LeftButton); }
};

TEST_F(MessageBarTest, AFirstStartInAnEmptyFolderSaysNothing)
{
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_TRUE(Bar().Messages().isEmpty());
}

TEST_F(MessageBarTest, ShowsOneMessageAfterTheOther)
{
    Bar().Tell(u"erste"_s);
    Bar().Tell(u"zweite"_s);
    EXPECT_TRUE(Bar().isVisible());
    EXPECT_EQ(Label("Message"), "erste");
    EXPECT_EQ(Label("MessageCount"), "und 1 weitere");
    CloseIt();
    EXPECT_EQ(Label("Message"), "zweite");
    EXPECT_FALSE(Find<QLabel>("MessageCount")->isVisible());
    CloseIt();
    EXPECT_FALSE(Bar().isVisible());
}

TEST_F(MessageBarTest, StandsAboveThePanelsInOneLineAndMovesNothingWhileHidden)
{
    const QPoint before = Field("Text14_0")->mapTo(&window, QPoint());
    Bar().Tell(u"Meldung"_s);
    QCoreApplication::processEvents();
    EXPECT_LE(Bar().mapTo(&window, QPoint(0, Bar().height())).y(),
              Field("Text14_0")->mapTo(&window, QPoint()).y());
    EXPECT_LT(Bar().height(), 3 * Bar().fontMetrics().height());
    CloseIt();
    QCoreApplication::processEvents();
    EXPECT_EQ(Field("Text14_0")->mapTo(&window, QPoint()), before);
}

TEST_F(MessageBarTest, NeverTakesTheFocus)
{
    QLineEdit* const field = Field("Text2_1");
    QTest::mouseClick(field, Qt::LeftButton);
    Bar().Tell(u"Meldung"_s);
    QTest::mouseClick(Find<QLabel>("Message"), Qt::LeftButton);
    EXPECT_TRUE(field->hasFocus());
    CloseIt();
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(MessageBarTest, ALongMessageIsCutOnTheLineAndWholeInItsHint)
{
    const int width = window.width();
    const QString text = u"Anfang "_s + QString(2000, u'x') + u" Ende"_s;
    Bar().Tell(text);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.width(), width);
    const QString shown = Find<QLabel>("Message")->text();
    EXPECT_LT(shown.size(), text.size());
    EXPECT_TRUE(shown.startsWith(u"Anfang"_s) && shown.endsWith(u"Ende"_s));
    EXPECT_EQ(Find<QLabel>("Message")->toolTip(), text);
    EXPECT_EQ(Find<QLabel>("Message")->accessibleName(), text);
}

}  // namespace
}  // namespace ui
