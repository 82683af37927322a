// The properties report: narrow beside the surface; a click unfolds it until it loses the focus.

#pragma once

#include <span>
#include <string>

#include <QListWidget>

namespace ui {

class PropertiesList : public QListWidget {
    Q_OBJECT

public:
    explicit PropertiesList(QWidget* parent);

    void Unfold(std::span<const std::string> lines);

    // Where it stands: in `folded`, or unfolded as wide and as high as its lines to the left.
    QRect Place(QRect folded) const;

    bool Unfolded() const { return unfolded_; }

signals:
    void Clicked();      // wants to be unfolded
    void FoldChanged();  // wants to be placed anew

protected:
    void focusOutEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    bool unfolded_ = false;
};

}  // namespace ui
