// The station list's list box.

#pragma once

#include <optional>
#include <vector>

#include <QListView>

namespace ui {

// Extended selection: a plain click chooses a line; Ctrl, Shift, dragging and the arrow keys mark
// and move only; typing searches. All lines have one height and one width, so that filling it takes
// no time that grows with the texts; no line is cut.
class StationListView : public QListView {
    Q_OBJECT

public:
    explicit StationListView(QWidget* parent = nullptr);

    // To be called after each fill, with the line that probably needs the most room.
    void SetLongestLine(const QString& line);

    // True when line `row` is marked. Cheap for every line of a list in turn.
    bool IsMarked(std::size_t row) const;

    // Indexes of the marked lines, ascending.
    std::vector<std::size_t> MarkedRows() const;

    // Marks exactly these lines, given in ascending order, and scrolls to the first.
    void MarkRows(const std::vector<std::size_t>& rows);

    void reset() override;

signals:
    void LineChosen(int row);  // by a plain click or by Return on the current line
    void LineMarked();         // by a click, a key or a command
    void EscapePressed();

protected:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    class OneSize;

    void WidenForShownLines();

    OneSize* size_;
    int pressedRow_ = -1;                             // by a press that a click may follow
    mutable std::optional<std::vector<bool>> marks_;  // of the selection; none when it has changed
};

}  // namespace ui
