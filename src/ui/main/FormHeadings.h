// The headings over the forms of both station blocks.

#pragma once

#include <array>

class QGridLayout;
class QRadioButton;

namespace ui {

// "G-M-H", "G-M-S": how both stations show degree-minutes.
using DegreeOptions = std::array<QRadioButton*, 2>;

// Adds the headings to the grid that the station panels stand in, as one row.
DegreeOptions AddFormHeadings(QGridLayout& grid, int row);

}  // namespace ui
