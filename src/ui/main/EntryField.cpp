#include "ui/main/EntryField.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QValidator>

namespace ui {

namespace {

bool IsLineBreak(QChar c)
{
    return (c >= u'\n' && c <= u'\r') || c == QChar(0x85) || c == QChar::LineSeparator
           || c == QChar::ParagraphSeparator;
}

// Alt and a letter is a command, even one that nobody takes. Together with one of the other two it
// is another name of AltGr, whose characters are text.
bool IsAltLetter(const QKeyEvent& key)
{
    constexpr Qt::KeyboardModifiers kAltGr = Qt::ControlModifier | Qt::GroupSwitchModifier;
    return key.modifiers().testFlag(Qt::AltModifier) && !(key.modifiers() & kAltGr)
           && !key.text().isEmpty() && key.text().front().isPrint();
}

}  // namespace

// Makes one line of every input, whichever way it comes.
class EntryField::OneLine : public QValidator {
public:
    explicit OneLine(EntryField* field) : QValidator(field), field_(*field) {}

    State validate(QString& text, int& caret) const override
    {
        for (qsizetype i = 0; !field_.showing_ && i < text.size(); ++i) {
            if (text.at(i) == u'\r' && text.mid(i + 1, 1) == u'\n') {
                text.remove(i, 1);
                caret -= i < caret ? 1 : 0;
            }
            if (IsLineBreak(text.at(i))) {
                text[i] = u' ';
            }
        }
        return Acceptable;
    }

private:
    const EntryField& field_;
};

EntryField::EntryField(int columns, QWidget* parent) : QLineEdit(parent), columns_(columns)
{
    setValidator(new OneLine(this));
    // Made first, so that the form is active when the others look.
    connect(this, &QLineEdit::textChanged, this, &EntryField::TextChanged);
}

QSize EntryField::sizeHint() const
{
    // What QLineEdit keeps free inside its frame, both sides, and a cursor.
    constexpr int kTextMargins = 8;
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * columns_ + kTextMargins;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize contents(width, QLineEdit::sizeHint().height());
    const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    return {contents.width() + frame, contents.height()};
}

QSize EntryField::minimumSizeHint() const
{
    return sizeHint();
}

void EntryField::Show(const QString& text)
{
    if (text != this->text()) {
        const QScopedValueRollback showing(showing_, true);
        setText(text);
        setCursorPosition(0);
    }
}

void EntryField::TextChanged()
{
    if (showing_) {
        return;
    }
    if (!typing_) {
        TakeFocus();
    }
    emit Entered();
}

void EntryField::TakeFocus()
{
    {
        const QScopedValueRollback taking(taking_, true);
        setFocus(Qt::OtherFocusReason);
    }
    if (!hasFocus()) {
        returning_ = true;  // the window is not active
    }
    emit Focused();
}

void EntryField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    const bool withWindow = event->reason() == Qt::ActiveWindowFocusReason;
    // A closing context menu gives the focus back; the selection it was opened for stays.
    const bool popup = event->reason() == Qt::PopupFocusReason;
    if (!popup && !taking_ && !(withWindow && returning_)) {
        selectAll();
    }
    if (!popup) {
        firstPress_ = event->reason() == Qt::MouseFocusReason || (withWindow && !pressedInactive_);
    }
    returning_ = false;
    pressedInactive_ = false;
    emit Focused();
}

void EntryField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    returning_ = event->reason() == Qt::ActiveWindowFocusReason;
}

void EntryField::mousePressEvent(QMouseEvent* event)
{
    QLineEdit::mousePressEvent(event);
    // Not every window system sends the activation before the press that brings it.
    pressedInactive_ = !hasFocus();
    pressed_.reset();
    // The press has just put the caret somewhere and dropped the selection. What the middle button
    // pastes goes there.
    if ((firstPress_ || pressedInactive_) && event->button() != Qt::MiddleButton) {
        selectAll();
        pressed_ = event->position().toPoint();
    }
    firstPress_ = false;
}

void EntryField::mouseMoveEvent(QMouseEvent* event)
{
    if (pressed_ && event->buttons().testFlag(Qt::LeftButton)) {
        const QPoint way = event->position().toPoint() - *pressed_;
        if (way.manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        setCursorPosition(cursorPositionAt(*pressed_));
        pressed_.reset();
    }
    QLineEdit::mouseMoveEvent(event);
}

void EntryField::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    pressed_.reset();
}

void EntryField::keyPressEvent(QKeyEvent* event)
{
    firstPress_ = false;
    if (IsAltLetter(*event)) {
        event->ignore();
        return;
    }
    const QScopedValueRollback typing(typing_, !event->matches(QKeySequence::Paste));
    QLineEdit::keyPressEvent(event);
}

void EntryField::inputMethodEvent(QInputMethodEvent* event)
{
    const QScopedValueRollback typing(typing_, true);
    QLineEdit::inputMethodEvent(event);
}

}  // namespace ui
