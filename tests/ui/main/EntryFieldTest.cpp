#include "ui/main/EntryField.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class EntryFieldTest : public MainFormFixture {
protected:
    // A point between the characters of the field, in front of character `index`.
    QPoint PointAt(QLineEdit* field, int index)
    {
        const QPoint first = field->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        const int caret = field->cursorPosition();
        const QFontMetrics metrics = field->fontMetrics();
        return {first.x() + metrics.horizontalAdvance(field->text().left(index))
                    - metrics.horizontalAdvance(field->text().left(caret)),
                field->height() / 2};
    }

    void Press(const char* name, int index = 2)
    {
        QTest::mouseClick(Field(name), Qt::LeftButton, {}, PointAt(Field(name), index));
    }

    void Activate(QWidget& other)
    {
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    }

    void LeaveAndReturn()
    {
        QWidget other;
        Activate(other);
        Activate(window);
    }

    bool WholeTextSelected(const char* name)
    {
        return !Field(name)->text().isEmpty() && Field(name)->selectedText() == Field(name)->text();
    }
};

TEST_F(EntryFieldTest, TheFirstPressIntoTheFieldFocusedAtTheStartKeepsItsTextSelected)
{
    ASSERT_EQ(window.focusWidget(), Field("Text1_0"));
    Press("Text1_0");
    EXPECT_TRUE(WholeTextSelected("Text1_0"));
    QTest::keyClicks(Field("Text1_0"), u"JO62QM"_s);
    EXPECT_EQ(Text("Text1_0"), "JO62QM");
}

TEST_F(EntryFieldTest, TypingAtTheStartReplacesTheText)
{
    QTest::keyClicks(Field("Text1_0"), u"JO62QM"_s);
    EXPECT_EQ(Text("Text1_0"), "JO62QM");
}

TEST_F(EntryFieldTest, TheFirstPressAfterTheWindowCameBackSelectsTheText)
{
    Type("Text14_1", u"DL1ABC"_s);
    LeaveAndReturn();
    Press("Text14_1");
    EXPECT_TRUE(WholeTextSelected("Text14_1"));
    QTest::keyClicks(Field("Text14_1"), u"DL5"_s);
    EXPECT_EQ(Text("Text14_1"), "DL5");
}

TEST_F(EntryFieldTest, ComingBackByTheKeyboardLeavesCaretAndHalfTypedText)
{
    Type("Text1_0", u"JO2M"_s);
    QTest::keyClick(Field("Text1_0"), Qt::Key_Left);
    QTest::keyClick(Field("Text1_0"), Qt::Key_Left);
    LeaveAndReturn();
    EXPECT_EQ(Field("Text1_0")->selectedText(), QString());
    EXPECT_EQ(Field("Text1_0")->cursorPosition(), 2);
    QTest::keyClicks(Field("Text1_0"), u"6"_s);
    EXPECT_EQ(Text("Text1_0"), "JO62M");
    Press("Text1_0", 3);
    EXPECT_EQ(Field("Text1_0")->cursorPosition(), 3) << "a key has been pressed since";
    EXPECT_EQ(Field("Text1_0")->selectedText(), QString());
}

TEST_F(EntryFieldTest, ComingBackByTheKeyboardLeavesTheSelection)
{
    Type("Text1_0", u"JO62QM"_s);
    QTest::keyClick(Field("Text1_0"), Qt::Key_Left, Qt::ShiftModifier);
    LeaveAndReturn();
    LeaveAndReturn();
    EXPECT_EQ(Field("Text1_0")->selectedText(), u"M"_s);
}

TEST_F(EntryFieldTest, ComingBackStillActivatesTheForm)
{
    Field("Text5_0")->setFocus();
    state.entry.activeGroup = app::EntryGroup::Decimal;
    LeaveAndReturn();
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::DegreeMinute);
}

TEST_F(EntryFieldTest, APressThatComesBeforeTheActivationItBringsSelectsTheText)
{
    for (const char* const name : {"Text14_0", "Text16_0"}) {
        SCOPED_TRACE(name);
        Type("Text16_0", u"Ort"_s);
        QWidget other;
        Activate(other);
        ASSERT_FALSE(window.isActiveWindow());
        Press(name);
        Activate(window);
        EXPECT_EQ(window.focusWidget(), Field(name));
        EXPECT_TRUE(WholeTextSelected(name));
        Press(name);
        EXPECT_EQ(Field(name)->selectedText(), QString()) << "the second press sets the caret";
        EXPECT_EQ(Field(name)->cursorPosition(), 2);
    }
}

TEST_F(EntryFieldTest, TheSecondPressSetsTheCaret)
{
    Press("Text14_0");
    EXPECT_TRUE(WholeTextSelected("Text14_0"));
    Press("Text14_0");
    EXPECT_EQ(Field("Text14_0")->selectedText(), QString());
    EXPECT_EQ(Field("Text14_0")->cursorPosition(), 2);
}

TEST_F(EntryFieldTest, AShakyPressStillSelectsTheWholeText)
{
    QLineEdit* const field = Field("Text14_0");
    const QPoint point = PointAt(field, 2);
    QTest::mousePress(field, Qt::LeftButton, {}, point);
    QTest::mouseMove(field, point + QPoint(1, 1));
    QTest::mouseRelease(field, Qt::LeftButton, {}, point + QPoint(1, 1));
    EXPECT_TRUE(WholeTextSelected("Text14_0"));
}

TEST_F(EntryFieldTest, DraggingSelectsFromWhereThePressWas)
{
    Field("Text14_0")->setText(u"abcdefghij"_s);
    Field("Text15_0")->setFocus();
    QLineEdit* const field = Field("Text14_0");
    for (int i = 0; i < 2; ++i) {
        const QPoint from = PointAt(field, 2);
        const QPoint to = PointAt(field, 7);
        QTest::mousePress(field, Qt::LeftButton, {}, from);
        QTest::mouseMove(field, to);
        EXPECT_EQ(field->selectedText(), u"cdefg"_s) << (i == 0 ? "with the focus" : "again");
        QTest::mouseRelease(field, Qt::LeftButton, {}, to);
        EXPECT_EQ(field->selectedText(), u"cdefg"_s);
    }
}

TEST_F(EntryFieldTest, ADoubleClickSelectsAWord)
{
    Field("Text15_0")->setText(u"Anna Berta"_s);
    Field("Text14_0")->setFocus();
    QLineEdit* const field = Field("Text15_0");
    const QPoint point = PointAt(field, 7);
    QTest::mouseClick(field, Qt::LeftButton, {}, point);
    QTest::mouseDClick(field, Qt::LeftButton, {}, point);
    EXPECT_EQ(field->selectedText(), u"Berta"_s);
}

TEST_F(EntryFieldTest, AltAndALetterAreNotTyped)
{
    Type("Text14_0", u"DL1"_s);
    QLineEdit* const field = Field("Text14_0");
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::AltModifier), Qt::AltModifier | Qt::ShiftModifier}) {
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_X, modifiers, u"x"_s);
        QApplication::sendEvent(field, &letter);
        EXPECT_FALSE(letter.isAccepted());
        QTest::keyClick(field, Qt::Key_B, modifiers);
    }
    EXPECT_EQ(Text("Text14_0"), "DL1");
}

TEST_F(EntryFieldTest, WhatAltGrGivesIsTyped)
{
    Type("Text14_0", u""_s);
    const struct {
        Qt::KeyboardModifiers modifiers;
        int key;
        QString text;
    } keys[] = {
        {Qt::ControlModifier | Qt::AltModifier, Qt::Key_At, u"@"_s},
        {Qt::GroupSwitchModifier, Qt::Key_E, u"€"_s},
        {Qt::GroupSwitchModifier | Qt::AltModifier, Qt::Key_Q, u"|"_s},
        {{}, Qt::Key_BraceLeft, u"{"_s},
    };
    for (const auto& key : keys) {
        QKeyEvent press(QEvent::KeyPress, key.key, key.modifiers, key.text);
        QApplication::sendEvent(Field("Text14_0"), &press);
    }
    EXPECT_EQ(Text("Text14_0"), "@€|{");
}

// Text that reaches a field by other ways than its keys.
class InputTest : public EntryFieldTest {
protected:
    void Drop(const char* name, const QString& text)
    {
        QLineEdit* const field = Field(name);
        QMimeData data;
        data.setText(text);
        const QPoint point = PointAt(field, 0);
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(field, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(field, &drop);
        ASSERT_TRUE(drop.isAccepted());
    }

    void Paste(const char* name, const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(Field(name), QKeySequence(QKeySequence::Paste));
    }

    QAccessibleInterface& Accessible(const char* name)
    {
        return *QAccessible::queryAccessibleInterface(Field(name));
    }
};

TEST_F(InputTest, ADropActivatesItsForm)
{
    Field("Text5_1")->setFocus();
    Field("Text1_0")->clear();
    Field("Text5_1")->setFocus();
    Drop("Text1_0", u"JN58TH"_s);
    EXPECT_EQ(Text("Text1_0"), "JN58TH");
    EXPECT_EQ(Text("Text3_0"), "48.312500");
    EXPECT_EQ(state.shown.position[0], (geo::GeoPosition{.latitude = 48.3125, .longitude = 11.625}))
        << "what is saved is what is shown";
    EXPECT_TRUE(Field("Text1_0")->hasFocus());
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Locator);
    QTest::keyClick(Field("Text1_0"), Qt::Key_End);
    QTest::keyClick(Field("Text1_0"), Qt::Key_Backspace);
    EXPECT_EQ(Text("Text3_0"), "48.020833") << "typing goes on from there";
}

TEST_F(InputTest, ADropIntoAnInactiveWindowActivatesItsForm)
{
    Type("Text1_1", u"JN58TH"_s);
    QWidget other;
    Activate(other);
    Drop("Text3_0", u"1"_s);
    EXPECT_EQ(Text("Text3_0"), "148.35");
    EXPECT_EQ(state.shown.position[0].latitude, 148.35);
    EXPECT_EQ(window.focusWidget(), Field("Text3_0"));
    Activate(window);
    EXPECT_EQ(Field("Text3_0")->selectedText(), QString());
    EXPECT_EQ(Field("Text3_0")->cursorPosition(), 1) << "behind what was dropped";
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Decimal);
}

TEST_F(InputTest, ATextSetByAnAssistiveToolActivatesItsForm)
{
    Field("Text5_0")->setFocus();
    Accessible("Text1_1").setText(QAccessible::Value, u"JN58TH"_s);
    EXPECT_EQ(Text("Text3_1"), "48.312500");
    EXPECT_TRUE(Field("Text1_1")->hasFocus());
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Locator);
    auto* const editor = Accessible("Text3_0").editableTextInterface();
    ASSERT_NE(editor, nullptr);
    editor->replaceText(0, 2, u"50"_s);
    EXPECT_EQ(Text("Text3_0"), "50.35");
    EXPECT_EQ(state.shown.position[0].latitude, 50.35);
    EXPECT_EQ(state.shown.position[0].longitude, 11.45);
    EXPECT_TRUE(Field("Text3_0")->hasFocus());
}

TEST_F(InputTest, AStationTextSetByAnAssistiveToolIsAnnounced)
{
    int changes = 0;
    QObject::connect(&window, &MainForm::Changed, [&] { ++changes; });
    Accessible("Text14_0").setText(QAccessible::Value, u"DL1ABC"_s);
    EXPECT_EQ(changes, 1) << "an open map shows the new label";
    EXPECT_TRUE(Field("Text14_0")->hasFocus());
    EXPECT_FALSE(Field("Text14_0")->hasSelectedText());
}

TEST_F(InputTest, APasteIntoAFieldWhoseFormWasTakenFromItActivatesTheForm)
{
    Field("Text1_0")->setFocus();
    state.entry.activeGroup = app::EntryGroup::Decimal;
    Paste("Text1_0", u"JN58TH"_s);
    EXPECT_EQ(Text("Text3_0"), "48.312500");
}

TEST_F(InputTest, APastedOrDroppedLineBreakBecomesABlank)
{
    const struct {
        QString text;
        const char* shown;
    } cases[] = {
        {u"a\nb"_s, "a b"},      {u"a\r\nb"_s, "a b"},
        {u"a\rb"_s, "a b"},      {u"a\u2028b\u2029c"_s, "a b c"},
        {u"a\vb\fc"_s, "a b c"}, {u"a\n\nb\n"_s, "a  b "},
        {u"a\u0085b"_s, "a b"},  {u"a\tb"_s, "a\tb"},
        {u"\r\n"_s, " "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.shown);
        Field("Text15_0")->clear();
        Paste("Text15_0", c.text);
        EXPECT_EQ(Text("Text15_0"), c.shown);
        EXPECT_EQ(Field("Text15_0")->cursorPosition(), Field("Text15_0")->text().size());
        Field("Text16_0")->clear();
        Drop("Text16_0", c.text);
        EXPECT_EQ(Text("Text16_0"), c.shown);
    }
}

TEST_F(InputTest, APastedLineBreakIsAnnouncedOnceAndLeavesTheCaretBehindIt)
{
    Type("Text15_0", u"xy"_s);
    QTest::keyClick(Field("Text15_0"), Qt::Key_Left);
    int changes = 0;
    QObject::connect(&window, &MainForm::Changed, [&] { ++changes; });
    Paste("Text15_0", u"a\r\nb"_s);
    EXPECT_EQ(Text("Text15_0"), "xa by");
    EXPECT_EQ(Field("Text15_0")->cursorPosition(), 4);
    EXPECT_EQ(changes, 1);
}

TEST_F(InputTest, AStoredLineBreakIsNoInput)
{
    Field("Text5_0")->setFocus();
    window.SetStation(1, {"DL1ABC", "a\nb", "", "", "", ""}, {48.0, 11.0});
    EXPECT_EQ(Text("Text15_1"), "a\nb") << "kept as it is stored";
    EXPECT_TRUE(Field("Text5_0")->hasFocus());
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Decimal);
}

}  // namespace
}  // namespace ui
