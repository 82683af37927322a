// A line above the station panels that tells what needs no answer.

#pragma once

#include <QFrame>
#include <QString>
#include <QStringList>

class QLabel;
class QToolButton;

namespace ui {

// Shows one message at a time, the oldest first; closing it shows the next. Hidden while there is
// none. It never takes the focus. A message that is wider than the line is cut in its middle; the
// hint and assistive programs have all of it.
class MessageBar : public QFrame {
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent = nullptr);

    void Tell(const QString& message);

    // All that is waiting, the shown one first.
    const QStringList& Messages() const { return messages_; }

    QLabel* Message;           // "Message"
    QLabel* MessageCount;      // "MessageCount": how many more wait
    QToolButton* CloseButton;  // "CloseMessage"

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void CloseMessage();
    void ShowFirst();
    void Elide();

    QStringList messages_;
};

}  // namespace ui
