#include "ui/main/FormHeadings.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include "ui/Controls.h"
#include "ui/main/StationPanel.h"

namespace ui {

using namespace Qt::StringLiterals;

FormHeadings::FormHeadings(QGridLayout& grid, int row) : QObject(grid.parentWidget())
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
    for (std::size_t i = 0; i < Option2.size(); ++i) {
        Option2[i] = Named(new QRadioButton(captions[i], window),
                           ElementName("Option2", static_cast<int>(i)));
        Option2[i]->setToolTip(toolTips[i]);
        line->addWidget(Option2[i]);
        // The Tab key reaches the chosen one. Qt sees to that only once one of them had the focus.
        Option2[i]->setFocusPolicy(Qt::ClickFocus);
        connect(Option2[i], &QRadioButton::toggled, this, [option = Option2[i]](bool chosen) {
            option->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
        });
    }
    line->addStretch();
    Option2[0]->setChecked(true);
    grid.addLayout(line, row, StationPanel::DegreeMinute);
}

}  // namespace ui
