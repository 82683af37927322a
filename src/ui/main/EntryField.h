// A text field of a station panel.

#pragma once

#include <QLineEdit>

namespace ui {

// Selects its whole text whenever it gets the focus, by key or by mouse, so that typing replaces
// it.
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
    void Focused();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    int columns_;
    bool focusedByMouse_ = false;
};

}  // namespace ui
