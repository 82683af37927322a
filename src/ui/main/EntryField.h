// A text field of a station panel.

#pragma once

#include <optional>

#include <QLineEdit>
#include <QPoint>

namespace ui {

// Selects its whole text whenever it gets the focus, by key or by mouse, so that typing replaces
// it. A press selects it, too, when it brings the focus or is the first since the window became
// active; a window that comes back by itself leaves caret and selection as they were.
//
// Only Show() is the program's own writing. Every other change is input: typing belongs to the
// field that has the focus anyway; a paste, a drop or a text set by an assistive tool takes it. A
// line break in an input becomes a blank.
class EntryField : public QLineEdit {
    Q_OBJECT

public:
    // `columns` is the number of digits that fit into the field at its smallest.
    explicit EntryField(int columns, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Shows `text` from its beginning; a no-op without change event when it is already shown.
    void Show(const QString& text);

signals:
    void Focused();  // before the change event of an input that took the focus
    void Entered();  // by an input

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    class OneLine;

    void TextChanged();
    void TakeFocus();

    int columns_;
    bool showing_ = false;           // the change comes from Show()
    bool typing_ = false;            // the change comes from a key
    bool taking_ = false;            // the focus comes by an input, whose caret stays
    bool returning_ = false;         // the focus went with the window
    bool firstPress_ = false;        // the next press is the first since the focus came
    bool pressedInactive_ = false;   // the activation is still on its way
    std::optional<QPoint> pressed_;  // where a press that selected everything is held
};

}  // namespace ui
