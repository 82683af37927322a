#include "ui/map/PropertiesList.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QScrollBar>

namespace ui {

PropertiesList::PropertiesList(QWidget* parent) : QListWidget(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PropertiesList::Unfold(std::span<const std::string> lines)
{
    clear();
    for (const std::string& line : lines) {
        addItem(QString::fromStdString(line));
    }
    unfolded_ = true;
    emit FoldChanged();
    raise();
    setFocus();
}

QRect PropertiesList::Place(QRect folded) const
{
    if (unfolded_) {
        constexpr int kLeast = 6;  // of the window stays free on its left
        const int frame = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
        folded.setLeft(std::max(kLeast, folded.right() - sizeHintForColumn(0) - frame));
        const int lines = count() * sizeHintForRow(0);
        folded.setHeight(std::min(folded.height(), lines + 2 * frameWidth()));
    }
    return folded;
}

void PropertiesList::focusOutEvent(QFocusEvent* event)
{
    if (std::exchange(unfolded_, false)) {
        emit FoldChanged();
    }
    QListWidget::focusOutEvent(event);
}

bool PropertiesList::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        emit Clicked();
    }
    return QListWidget::viewportEvent(event);
}

}  // namespace ui
