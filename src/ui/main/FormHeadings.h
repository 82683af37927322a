// The headings over the forms of both station blocks.

#pragma once

#include <array>

#include <QObject>

class QGridLayout;
class QRadioButton;

namespace ui {

class FormHeadings : public QObject {
    Q_OBJECT

public:
    // Takes one row of the grid that the station panels stand in.
    FormHeadings(QGridLayout& grid, int row);

    std::array<QRadioButton*, 2>
        Option2;  // "G-M-H", "G-M-S": how both stations show degree-minutes
};

}  // namespace ui
