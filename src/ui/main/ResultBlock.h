// The result block of the main window: distance and both directions.

#pragma once

#include <array>
#include <string>

#include <QFrame>

class QLabel;
class QPushButton;

namespace ui {

class ResultBlock : public QFrame {
    Q_OBJECT

public:
    explicit ResultBlock(QWidget* parent = nullptr);

    void Show(const std::string& distance, const std::string& direction1,
              const std::string& direction2);

    QLabel* Label3;                  // distance line
    std::array<QLabel*, 2> Label10;  // "Richtung Station 1:", "Richtung Station 2:"
    std::array<QLabel*, 2> Label4;   // direction from each station towards the other
    QPushButton* Command5;           // "Karte": opens the map window
};

}  // namespace ui
