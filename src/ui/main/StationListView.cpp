#include "ui/main/StationListView.h"

#include <algorithm>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

namespace ui {

namespace {

constexpr int kMargin = 4;  // around a line

}  // namespace

// Gives every line the same size without looking at it.
class StationListView::OneSize : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override
    {
        return size;
    }

    QSize size;
};

StationListView::StationListView(QWidget* parent) : QListView(parent), size_(new OneSize(this))
{
    setSelectionMode(ExtendedSelection);
    setUniformItemSizes(true);
    setItemDelegate(size_);
    SetLongestLine({});
}

void StationListView::SetLongestLine(const QString& line)
{
    constexpr int kSpareDigits = 10;  // a number in front may be longer in another line
    const int digit = fontMetrics().horizontalAdvance(u'0');
    size_->size = {fontMetrics().horizontalAdvance(line) + kSpareDigits * digit + 2 * kMargin,
                   fontMetrics().height() + kMargin};
    scheduleDelayedItemsLayout();
}

void StationListView::WidenForShownLines()
{
    int widest = 0;
    for (QModelIndex line = indexAt({0, 0});
         line.isValid() && visualRect(line).top() < viewport()->height();
         line = line.siblingAtRow(line.row() + 1)) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(line.data().toString()));
    }
    if (widest + 2 * kMargin > size_->size.width()) {
        size_->size.setWidth(widest + 2 * kMargin);
        scheduleDelayedItemsLayout();
    }
}

void StationListView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    // Wide letters may make a line wider than the one with the most characters.
    WidenForShownLines();
}

bool StationListView::IsMarked(std::size_t row) const
{
    if (!marks_ && selectionModel() != nullptr) {
        marks_.emplace(static_cast<std::size_t>(model()->rowCount()), false);
        for (const QItemSelectionRange& range : selectionModel()->selection()) {
            for (int line = range.top(); line <= range.bottom(); ++line) {
                (*marks_)[static_cast<std::size_t>(line)] = true;
            }
        }
    }
    return marks_ && row < marks_->size() && (*marks_)[row];
}

std::vector<std::size_t> StationListView::MarkedRows() const
{
    std::vector<std::size_t> rows;
    const auto lines = static_cast<std::size_t>(model()->rowCount());
    for (std::size_t row = 0; row < lines; ++row) {
        if (IsMarked(row)) {
            rows.push_back(row);
        }
    }
    return rows;
}

void StationListView::MarkRows(const std::vector<std::size_t>& rows)
{
    QItemSelection selection;
    for (std::size_t i = 0; i < rows.size();) {
        // Neighbours make one range: the list box is slow with many.
        std::size_t last = i;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) {
            ++last;
        }
        selection.append(QItemSelectionRange(model()->index(static_cast<int>(rows[i]), 0),
                                             model()->index(static_cast<int>(rows[last]), 0)));
        i = last + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.empty()) {
        const QModelIndex first = model()->index(static_cast<int>(rows.front()), 0);
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first, PositionAtTop);
    }
}

void StationListView::reset()
{
    QListView::reset();
    marks_.reset();
    pressedRow_ = -1;  // that line may be another now
}

void StationListView::selectionChanged(const QItemSelection& selected,
                                       const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    marks_.reset();
    if (!selected.isEmpty()) {
        emit LineMarked();
    }
}

void StationListView::focusInEvent(QFocusEvent* event)
{
    const bool chosen = currentIndex().isValid();
    QListView::focusInEvent(event);
    // The list box would make the first line current by itself. Return must not load or delete a
    // line that nobody went to. The marks stay: setCurrentIndex() would take them away.
    if (!chosen) {
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
}

void StationListView::mousePressEvent(QMouseEvent* event)
{
    const bool plain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    const QModelIndex pressed = indexAt(event->position().toPoint());
    pressedRow_ = plain && pressed.isValid() ? pressed.row() : -1;
    QListView::mousePressEvent(event);
}

void StationListView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListView::mouseDoubleClickEvent(event);
    // The first click has done its work, and the list may be another by now; in that case the call
    // above has taken this for a first press.
    pressedRow_ = -1;
}

void StationListView::mouseMoveEvent(QMouseEvent* event)
{
    if (indexAt(event->position().toPoint()).row() != pressedRow_) {
        pressedRow_ = -1;  // dragged away: marks lines, chooses none
    }
    QListView::mouseMoveEvent(event);
}

void StationListView::mouseReleaseEvent(QMouseEvent* event)
{
    QListView::mouseReleaseEvent(event);
    const int row = pressedRow_;
    pressedRow_ = -1;
    if (row >= 0 && indexAt(event->position().toPoint()).row() == row) {
        emit LineChosen(row);
    }
}

void StationListView::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        emit EscapePressed();
    } else if (enter && currentIndex().isValid()) {
        emit LineChosen(currentIndex().row());
    } else {
        // Without a current line Qt would take these, too, to the first line.
        const bool far = event->key() == Qt::Key_End || event->key() == Qt::Key_PageDown;
        if (far && !currentIndex().isValid()) {
            selectionModel()->setCurrentIndex(model()->index(0, 0), QItemSelectionModel::NoUpdate);
        }
        QListView::keyPressEvent(event);
    }
}

}  // namespace ui
