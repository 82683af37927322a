#include "ui/main/CfgForm.h"

#include <initializer_list>

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/Controls.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

QRadioButton* NewOption(const QString& name, const QString& text)
{
    return Named(new QRadioButton(text), name);
}

QGroupBox* NewFrame(const QString& name, const QString& title,
                    std::initializer_list<QRadioButton*> options)
{
    auto* const frame = Named(new QGroupBox(title), name);
    auto* const column = new QVBoxLayout(frame);
    for (QRadioButton* const option : options) {
        column->addWidget(option);
    }
    column->addStretch();
    return frame;
}

// None of the buttons of a group stays selected when a setting matches none.
void Select(QRadioButton* option, bool selected)
{
    option->setAutoExclusive(false);
    option->setChecked(selected);
    option->setAutoExclusive(true);
}

}  // namespace

CfgForm::CfgForm(app::AppState& state, QWidget* parent) : QDialog(parent), state_(state)
{
    setObjectName(u"CfgForm"_s);
    setWindowTitle(u"Konfiguration"_s);
    setModal(true);
    Option1 = NewOption(u"Option1"_s, u"G-M-S (Sekunden)"_s);
    Option2 = NewOption(u"Option2"_s, u"G-M-H (Hundertstel Minuten)"_s);
    Option3 = NewOption(u"Option3"_s, u"WGS84 (nur Süddeutschl.)"_s);
    Option4 = NewOption(u"Option4"_s, u"ED50"_s);
    const std::array layouts = {u"G-M-S / G-M-H"_s, u"Grad"_s, u"UTM"_s, u"Locator"_s};
    for (std::size_t i = 0; i < Option5.size(); ++i) {
        Option5[i] = NewOption(ElementName("Option5", static_cast<int>(i)), layouts[i]);
        connect(Option5[i], &QRadioButton::clicked, this,
                [this, i] { copy_.listingMode = static_cast<stations::ListingMode>(i); });
    }
    Check1 = Named(new QCheckBox(u"Autoredraw"_s), u"Check1"_s);
    Check1->setToolTip(u"Die offene Karte folgt jeder Änderung von selbst"_s);
    Check2 = Named(new QCheckBox(u"Himmelsrichtung"_s), u"Check2"_s);
    Check2->setToolTip(u"Richtungen als Himmelsrichtung statt in Grad"_s);
    Command1 = Named(new QPushButton(u"O.k."_s), u"Command1"_s);
    Command1->setDefault(true);
    Command2 = Named(new QPushButton(u"abbrechen"_s), u"Command2"_s);

    auto* const grid = new QGridLayout(this);
    QGroupBox* const degreeFormat = NewFrame(u"Frame1"_s, u"Grad-Format"_s, {Option1, Option2});
    degreeFormat->setToolTip(u"Umgeschaltet wird im Hauptfenster"_s);
    grid->addWidget(degreeFormat, 0, 0);
    grid->addWidget(NewFrame(u"Frame2"_s, u"Gauss Krüger Normierung"_s, {Option3, Option4}), 1, 0);
    grid->addWidget(
        NewFrame(u"Frame3"_s, u"Listing"_s, {Option5[0], Option5[1], Option5[2], Option5[3]}), 0, 1,
        2, 1);
    grid->addWidget(Check1, 2, 0);
    grid->addWidget(Check2, 2, 1);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    grid->addLayout(buttons, 3, 0, 1, 2);

    connect(Command1, &QPushButton::clicked, this, &CfgForm::Confirm);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
}

void CfgForm::Edit()
{
    copy_ = state_.configuration;
    ShowSettings();
    show();
    activateWindow();
}

void CfgForm::ShowSettings()
{
    const bool seconds = copy_.degreeFormat == geo::DegreeMinuteMode::Seconds;
    Select(Option1, seconds);
    Select(Option2, !seconds);
    Select(Option3, copy_.datum == 0);
    Select(Option4, copy_.datum == 1);
    for (std::size_t i = 0; i < Option5.size(); ++i) {
        Select(Option5[i], copy_.listingMode == static_cast<stations::ListingMode>(i));
    }
    Check1->setChecked(copy_.autoRedraw);
    Check2->setChecked(copy_.compassDirection);
}

void CfgForm::Confirm()
{
    if (Option3->isChecked()) {
        copy_.datum = 0;
    } else if (Option4->isChecked()) {
        copy_.datum = 1;
    }
    copy_.autoRedraw = Check1->isChecked();
    copy_.compassDirection = Check2->isChecked();
    state_.configuration = copy_;
    state_.session.configurationChanged = true;
    accept();
    emit Confirmed();
}

}  // namespace ui
