// A small notice that closes itself after a second.

#pragma once

#include <cstdint>

#include <QWidget>

class QLabel;
class QPushButton;
class QTimer;

namespace ui {

class Display : public QWidget {
    Q_OBJECT

public:
    explicit Display(QWidget* parent = nullptr);

    // Loads the window anew and shows it, without waiting and without taking the focus.
    void ShowMessage(const QString& message);

    QLabel* Label1;         // the message
    QTimer* Timer1;         // 10 ms
    QPushButton* Command1;  // "schliessen"

private:
    void Tick();

    std::int16_t ticks_ = 0;  // since the window was loaded
};

}  // namespace ui
