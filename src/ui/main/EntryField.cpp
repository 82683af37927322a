#include "ui/main/EntryField.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFrame>

namespace ui {

EntryField::EntryField(int columns, QWidget* parent) : QLineEdit(parent), columns_(columns) {}

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
        setText(text);
        setCursorPosition(0);
    }
}

void EntryField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // A closing context menu gives the focus back; the selection it was opened for stays.
    if (event->reason() != Qt::PopupFocusReason) {
        selectAll();
    }
    focusedByMouse_ = event->reason() == Qt::MouseFocusReason;
    emit Focused();
}

void EntryField::mousePressEvent(QMouseEvent* event)
{
    QLineEdit::mousePressEvent(event);
    // The press that gave the focus has just put the cursor somewhere and dropped the selection.
    if (focusedByMouse_) {
        selectAll();
    }
    focusedByMouse_ = false;
}

}  // namespace ui
