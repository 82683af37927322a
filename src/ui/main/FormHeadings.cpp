#include "ui/main/FormHeadings.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "ui/Controls.h"
#include "ui/main/StationPanel.h"

namespace ui {

using namespace Qt::StringLiterals;

DegreeOptions AddFormHeadings(QGridLayout& grid, int row)
{
    QWidget* const window = grid.parentWidget();
    const struct {
        const char* name;
        QString text;
        int column;
    } headings[] = {
        {"Label5", u"INFO"_s, StationPanel::Info},
        {"Label6", u"KOMPASSO"_s, StationPanel::Locator},
        {"Label7", u"GRAD"_s, StationPanel::Decimal},
        {"Label9", u"GAUSS-KRÜGER"_s, StationPanel::GaussKrueger},
        {"Label13", u"UTM"_s, StationPanel::Utm},
    };
    for (const auto& h : headings) {
        auto* const label = Bold(Named(new QLabel(h.text, window), QLatin1StringView(h.name)));
        label->setContentsMargins(h.column == StationPanel::Info ? StationPanel::kPadding : 0, 0, 0,
                                  0);
        grid.addWidget(label, row, h.column);
    }

    auto* const line = new QHBoxLayout;
    line->setSpacing(StationPanel::kPadding);
    const std::array captions = {u"G-M-H"_s, u"G-M-S"_s};
    const std::array toolTips = {u"Grad, Minuten, Hundertstel Minuten"_s,
                                 u"Grad, Minuten, Sekunden"_s};
    DegreeOptions options = {};
    for (std::size_t i = 0; i < options.size(); ++i) {
        QRadioButton* const option = options[i] = Named(
            new QRadioButton(captions[i], window), ElementName("Option2", static_cast<int>(i)));
        option->setToolTip(toolTips[i]);
        line->addWidget(option);
        // The Tab key reaches the chosen one. Qt sees to that only once one of them had the focus.
        option->setFocusPolicy(Qt::ClickFocus);
        QObject::connect(option, &QRadioButton::toggled, option, [option](bool chosen) {
            option->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
        });
    }
    line->addStretch();
    options[0]->setChecked(true);
    grid.addLayout(line, row, StationPanel::DegreeMinute);
    return options;
}

}  // namespace ui
