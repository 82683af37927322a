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
    AddLocator(NewForm(grid, row + 1, Locator));
    AddDecimal(NewForm(grid, row + 1, Decimal));
    AddDegreeMinute(NewForm(grid, row + 1, DegreeMinute));
    AddGaussKrueger(NewForm(grid, row + 1, GaussKrueger));
    AddUtm(NewForm(grid, row + 1, Utm));
    AddButtons(grid, row + 2);
}

void StationPanel::ShowUnits(geo::DegreeMinuteMode mode)
{
    const bool seconds = mode == geo::DegreeMinuteMode::Seconds;
    for (std::size_t i = 0; i < unit_.size(); i += 3) {
        unit_[i]->setText(u"°"_s);
        unit_[i + 1]->setText(u"′"_s);
        unit_[i + 2]->setText(seconds ? u"″"_s : u"H"_s);
        unit_[i + 2]->setToolTip(seconds ? u"Sekunden"_s : u"Hundertstel Minuten"_s);
    }
}

void StationPanel::ShowTexts(const stations::StationTexts& texts) const
{
    const std::array shown = {&texts.callsign,  &texts.name,   &texts.place,
                              &texts.frequency, &texts.remark, &texts.date};
    const std::array<EntryField*, 6> fields = StationFields();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i]->Show(QString::fromStdString(*shown[i]));
    }
}

stations::StationTexts StationPanel::Texts() const
{
    return {.callsign = Composed(Text14->text()),
            .name = Composed(Text15->text()),
            .place = Composed(Text16->text()),
            .frequency = Composed(Text17->text()),
            .remark = Composed(Text18->text()),
            .date = Composed(Text19->text())};
}

EntryField* StationPanel::NewField(const char* name, int columns, const QString& accessibleName)
{
    auto* const field = Named(new EntryField(columns, window_), ElementName(name, station));
    field->setAccessibleName(u"Station %1, %2"_s.arg(station + 1).arg(accessibleName));
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

void StationPanel::AddInfo(QGridLayout& form)
{
    const struct {
        EntryField* StationPanel::*field;
        const char* name;
        QString caption;
        QString accessibleName;
    } fields[] = {
        {&StationPanel::Text14, "Text14", u"Rufz."_s, u"Rufzeichen"_s},
        {&StationPanel::Text15, "Text15", u"Name"_s, u"Name"_s},
        {&StationPanel::Text16, "Text16", u"Ort"_s, u"Ort"_s},
        {&StationPanel::Text17, "Text17", u"Frequ."_s, u"Frequenz"_s},
        {&StationPanel::Text18, "Text18", u"Anm."_s, u"Anmerkung"_s},
        {&StationPanel::Text19, "Text19", u"Datum"_s, u"Datum"_s},
    };
    constexpr int kFieldsPerRow = 2;
    constexpr int kFieldColumns = 15;
    int i = 0;
    for (const auto& f : fields) {
        EntryField* const field = NewField(f.name, kFieldColumns, f.accessibleName);
        this->*f.field = field;
        const int column = 2 * (i % kFieldsPerRow);
        form.addWidget(NewCaption(f.caption, field), i / kFieldsPerRow, column);
        form.addWidget(field, i / kFieldsPerRow, column + 1);
        form.setColumnStretch(column + 1, 1);
        ++i;
    }
}

void StationPanel::AddLocator(QGridLayout& form)
{
    Text1 = NewField("Text1", 8, u"Locator"_s);
    form.addWidget(Text1, 0, 0);
    form.setRowStretch(1, 1);
}

void StationPanel::AddDecimal(QGridLayout& form)
{
    Text3 = NewField("Text3", 11, u"Breite in Grad"_s);
    Text2 = NewField("Text2", 11, u"Länge in Grad"_s);
    form.addWidget(NewCaption(u"Breite"_s, Text3), 0, 0);
    form.addWidget(Text3, 0, 1);
    form.addWidget(NewCaption(u"Länge"_s, Text2), 1, 0);
    form.addWidget(Text2, 1, 1);
    form.setRowStretch(2, 1);
}

void StationPanel::AddDegreeMinute(QGridLayout& form)
{
    const struct Part {
        EntryField* StationPanel::*field;
        const char* name;
        int columns;
        QString accessibleName;
    } parts[2][4] = {
        {{&StationPanel::Text8, "Text8", 3, u"Breite, Grad"_s},
         {&StationPanel::Text9, "Text9", 2, u"Breite, Minuten"_s},
         {&StationPanel::Text10, "Text10", 2, u"Breite, Sekunden oder Hundertstel Minuten"_s},
         {&StationPanel::Text11, "Text11", 2, u"Breite, N oder S"_s}},
        {{&StationPanel::Text4, "Text4", 3, u"Länge, Grad"_s},
         {&StationPanel::Text5, "Text5", 2, u"Länge, Minuten"_s},
         {&StationPanel::Text6, "Text6", 2, u"Länge, Sekunden oder Hundertstel Minuten"_s},
         {&StationPanel::Text7, "Text7", 2, u"Länge, O oder W"_s}},
    };
    for (int row = 0; row < 2; ++row) {
        const bool latitude = row == 0;
        auto* const line = new QHBoxLayout;
        line->setSpacing(2);
        std::size_t part = 0;
        for (const Part& p : parts[row]) {
            EntryField* const field = NewField(p.name, p.columns, p.accessibleName);
            this->*p.field = field;
            line->addWidget(field);
            if (part < 3) {
                auto* const unit = new QLabel(window_);
                unit->setMinimumWidth(unit->fontMetrics().horizontalAdvance(u'H'));
                unit_[(latitude ? 3U : 0U) + part] = unit;
                line->addWidget(unit);
            }
            ++part;
        }
        EntryField* const first = latitude ? Text8 : Text4;
        form.addWidget(NewCaption(latitude ? u"Breite"_s : u"Länge"_s, first), row, 0);
        form.addLayout(line, row, 1);
    }
    form.setRowStretch(2, 1);
    ShowUnits(geo::DegreeMinuteMode::Hundredths);
}

void StationPanel::AddGaussKrueger(QGridLayout& form)
{
    Text12 = NewField("Text12", 8, u"Gauß-Krüger Rechtswert"_s);
    Text13 = NewField("Text13", 8, u"Gauß-Krüger Hochwert"_s);
    form.addWidget(NewCaption(u"Rechts"_s, Text12), 0, 0);
    form.addWidget(Text12, 0, 1);
    form.addWidget(NewCaption(u"Höhe"_s, Text13), 1, 0);
    form.addWidget(Text13, 1, 1);
    form.setRowStretch(2, 1);
}

void StationPanel::AddUtm(QGridLayout& form)
{
    Text20 = NewField("Text20", 3, u"UTM Zone"_s);
    Text21 = NewField("Text21", 8, u"UTM Rechtswert"_s);
    Text22 = NewField("Text22", 8, u"UTM Hochwert"_s);
    form.addWidget(NewCaption(u"Zone"_s, Text20), 0, 0);
    form.addWidget(Text20, 0, 1);
    form.addWidget(NewCaption(u"Rechts"_s, Text21), 1, 0);
    form.addWidget(Text21, 1, 1);
    form.addWidget(NewCaption(u"Höhe"_s, Text22), 2, 0);
    form.addWidget(Text22, 2, 1);
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
