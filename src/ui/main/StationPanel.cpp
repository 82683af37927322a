#include "ui/main/StationPanel.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/ComposedText.h"
#include "ui/Controls.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCaptionsPerPanel = 15;
constexpr int kFormRows = 3;  // of the highest forms

// A form of its own inside one cell of the window's grid.
QGridLayout& NewForm(QGridLayout& grid, int row, int column)
{
    auto* const widget = new QWidget(grid.parentWidget());
    auto* const form = new QGridLayout(widget);
    form->setContentsMargins(column == StationPanel::Info ? StationPanel::kPadding : 0, 0,
                             column == StationPanel::Utm ? StationPanel::kPadding : 0, 0);
    grid.addWidget(widget, row, column);
    return *form;
}

}  // namespace

StationPanel::StationPanel(int stationIndex, QGridLayout& grid, int row)
    : QObject(grid.parentWidget()), station(stationIndex), window_(grid.parentWidget())
{
    auto* const frame = new QFrame(window_);
    frame->setFrameShape(QFrame::StyledPanel);
    grid.addWidget(frame, row, 0, kRows, Columns);

    const bool first = station == 0;
    auto* const title = Named(new QLabel(first ? u"Station1"_s : u"Station2"_s, window_),
                              first ? u"Label1"_s : u"Label2"_s);
    Bold(title);
    title->setContentsMargins(kPadding, kPadding, 0, 0);
    grid.addWidget(title, row, 0, Qt::AlignBottom);

    // Made in reading order, which is thereby the order of the Tab key.
    AddInfo(NewForm(grid, row + 1, Info));
    QGridLayout& locator = NewForm(grid, row + 1, Locator);
    locator.addWidget(NewField(1, 8, u"Locator"_s), 0, 0);
    locator.setRowStretch(1, 1);
    AddRows(NewForm(grid, row + 1, Decimal),
            {{3, 11, u"Breite"_s, u"Breite in Grad"_s}, {2, 11, u"Länge"_s, u"Länge in Grad"_s}});
    AddDegreeMinute(NewForm(grid, row + 1, DegreeMinute));
    AddRows(NewForm(grid, row + 1, GaussKrueger),
            {{12, 8, u"Rechts"_s, u"Gauß-Krüger Rechtswert"_s},
             {13, 8, u"Höhe"_s, u"Gauß-Krüger Hochwert"_s}});
    AddRows(NewForm(grid, row + 1, Utm), {{20, 3, u"Zone"_s, u"UTM Zone"_s},
                                          {21, 8, u"Rechts"_s, u"UTM Rechtswert"_s},
                                          {22, 8, u"Höhe"_s, u"UTM Hochwert"_s}});
    AddButtons(grid, row + 2);
}

void StationPanel::ShowUnits(geo::DegreeMinuteMode mode)
{
    const bool seconds = mode == geo::DegreeMinuteMode::Seconds;
    for (QLabel* const unit : thirdUnit_) {
        unit->setText(seconds ? u"″"_s : u"H"_s);
        unit->setToolTip(seconds ? u"Sekunden"_s : u"Hundertstel Minuten"_s);
    }
}

void StationPanel::ShowTexts(const stations::StationTexts& texts) const
{
    const std::array shown = {&texts.callsign,  &texts.name,   &texts.place,
                              &texts.frequency, &texts.remark, &texts.date};
    for (std::size_t i = 0; i < shown.size(); ++i) {
        StationFields()[i]->Show(QString::fromStdString(*shown[i]));
    }
}

stations::StationTexts StationPanel::Texts() const
{
    return {.callsign = Composed(Text[14]->text()),
            .name = Composed(Text[15]->text()),
            .place = Composed(Text[16]->text()),
            .frequency = Composed(Text[17]->text()),
            .remark = Composed(Text[18]->text()),
            .date = Composed(Text[19]->text())};
}

EntryField* StationPanel::NewField(int number, int columns, const QString& accessibleName)
{
    auto* const field =
        Named(new EntryField(columns, window_), u"Text%1_%2"_s.arg(number).arg(station));
    field->setAccessibleName(u"Station %1, %2"_s.arg(station + 1).arg(accessibleName));
    Text[static_cast<std::size_t>(number)] = field;
    return field;
}

QLabel* StationPanel::NewCaption(const QString& text, QWidget* buddy)
{
    const int element = station * kCaptionsPerPanel + captions_++;
    auto* const caption = Named(new QLabel(text, window_), ElementName("Label12", element));
    caption->setBuddy(buddy);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return caption;
}

void StationPanel::AddEntry(QGridLayout& form, const Entry& entry, int row, int column)
{
    EntryField* const field = NewField(entry.number, entry.columns, entry.accessibleName);
    form.addWidget(NewCaption(entry.caption, field), row, column);
    form.addWidget(field, row, column + 1);
}

void StationPanel::AddRows(QGridLayout& form, std::initializer_list<Entry> entries)
{
    int row = 0;
    for (const Entry& entry : entries) {
        AddEntry(form, entry, row++, 0);
    }
    if (row < kFormRows) {
        form.setRowStretch(row, 1);
    }
}

void StationPanel::AddInfo(QGridLayout& form)
{
    constexpr int kFieldColumns = 15;
    const Entry entries[kFormRows][2] = {
        {{14, kFieldColumns, u"Rufz."_s, u"Rufzeichen"_s},
         {15, kFieldColumns, u"Name"_s, u"Name"_s}},
        {{16, kFieldColumns, u"Ort"_s, u"Ort"_s}, {17, kFieldColumns, u"Frequ."_s, u"Frequenz"_s}},
        {{18, kFieldColumns, u"Anm."_s, u"Anmerkung"_s},
         {19, kFieldColumns, u"Datum"_s, u"Datum"_s}},
    };
    for (int row = 0; row < kFormRows; ++row) {
        AddEntry(form, entries[row][0], row, 0);
        AddEntry(form, entries[row][1], row, 2);
    }
    form.setColumnStretch(1, 1);
    form.setColumnStretch(3, 1);
}

void StationPanel::AddDegreeMinute(QGridLayout& form)
{
    for (int row = 0; row < 2; ++row) {
        const bool latitude = row == 0;
        const int first = latitude ? 8 : 4;
        const QString caption = latitude ? u"Breite"_s : u"Länge"_s;
        const QString parts[] = {u"Grad"_s, u"Minuten"_s, u"Sekunden oder Hundertstel Minuten"_s,
                                 latitude ? u"N oder S"_s : u"O oder W"_s};
        auto* const line = new QHBoxLayout;
        line->setSpacing(2);
        for (int part = 0; part < 4; ++part) {
            line->addWidget(
                NewField(first + part, part == 0 ? 3 : 2, caption + u", "_s + parts[part]));
            if (part < 3) {
                auto* const unit = new QLabel(part == 0 ? u"°"_s : u"′"_s, window_);
                unit->setMinimumWidth(unit->fontMetrics().horizontalAdvance(u'H'));
                line->addWidget(unit);
                thirdUnit_[static_cast<std::size_t>(row)] = unit;
            }
        }
        form.addWidget(NewCaption(caption, Text[static_cast<std::size_t>(first)]), row, 0);
        form.addLayout(line, row, 1);
    }
    form.setRowStretch(2, 1);
    ShowUnits(geo::DegreeMinuteMode::Hundredths);
}

void StationPanel::AddButtons(QGridLayout& grid, int row)
{
    Command1 = Named(new QPushButton(u"Laden"_s, window_), ElementName("Command1", station));
    Command4 = Named(new QPushButton(u"REMOVE"_s, window_), ElementName("Command4", station));
    SA = Named(new QPushButton(u"Sichern"_s, window_), ElementName("SA", station));
    auto* const line = new QHBoxLayout;
    line->setSpacing(kPadding);
    line->setContentsMargins(kPadding, 0, kPadding, kPadding);
    line->addStretch();
    for (QPushButton* const button : {Command1, Command4, SA}) {
        button->setAccessibleName(u"Station %1, %2"_s.arg(station + 1).arg(button->text()));
        line->addWidget(button);
    }
    grid.addLayout(line, row, 0, 1, Columns);
}

}  // namespace ui
