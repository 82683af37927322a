#include "ui/main/StationListFrame.h"

#include <optional>
#include <utility>

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "stations/Sorting.h"
#include "ui/Controls.h"
#include "ui/DatabaseActions.h"
#include "ui/main/StationListModel.h"
#include "ui/main/StationListView.h"

namespace ui {

using namespace Qt::StringLiterals;

StationListFrame::StationListFrame(app::AppState& state, UserDialogs& dialogs, QWidget* parent)
    : QGroupBox(u"List"_s, parent), state_(state), dialogs_(dialogs),
      model_(new StationListModel(state.database, state.numberFormat, this))
{
    setObjectName(u"Frame1"_s);
    List1 = Named(new StationListView(this), u"List1"_s);
    List1->setAccessibleName(u"Stationsliste"_s);
    List1->setModel(model_);
    Command3 = NewButton(u"Command3"_s, u"Sortieren"_s);
    SortCombo = Named(new QComboBox(this), u"SortCombo"_s);
    SortCombo->setAccessibleName(u"Sortierschlüssel"_s);
    for (const char* const entry : stations::kSortEntries) {
        SortCombo->addItem(QString::fromUtf8(entry));
    }
    SortCombo->setMaxVisibleItems(SortCombo->count());
    SortCombo->setEnabled(false);
    Command7 = NewButton(u"Command7"_s, u"Sichern"_s);
    Command6 = NewButton(u"Command6"_s, u"Auslagern"_s);
    Command2 = NewButton(u"Command2"_s, u"schliessen"_s);

    auto* const column = new QVBoxLayout(this);
    column->addWidget(List1, 1);
    auto* const line = new QHBoxLayout;
    column->addLayout(line);
    line->addWidget(Command3);
    line->addWidget(SortCombo);
    line->addStretch();
    line->addWidget(Command7);
    line->addWidget(Command6);
    line->addWidget(Command2);

    connect(Command2, &QPushButton::clicked, this, &StationListFrame::Close);
    connect(List1, &StationListView::EscapePressed, this, &StationListFrame::Close);
    connect(Command3, &QPushButton::clicked, this, [this] {
        SortCombo->setEnabled(true);
        SortCombo->setFocus();
    });
    connect(SortCombo, &QComboBox::activated, this, &StationListFrame::SortChosen);
    connect(List1, &StationListView::LineMarked, this, [this] {
        Command6->setEnabled(true);
        Command7->setEnabled(true);
    });
}

QPushButton* StationListFrame::NewButton(const QString& name, const QString& text)
{
    auto* const button = Named(new QPushButton(text, this), name);
    button->setAutoDefault(false);
    return button;
}

void StationListFrame::List1Load(const std::vector<double>& keyValues)
{
    model_->Fill(state_.list.key, keyValues);
    List1->SetLongestLine(model_->LongestLine());
    Command6->setEnabled(false);
    Command7->setEnabled(false);
}

void StationListFrame::List1Check()
{
    if (static_cast<std::size_t>(model_->rowCount()) != state_.database.Count()) {
        List1Load();
    }
}

stations::Written StationListFrame::TakeDatabaseChange(const DatabaseChange& change)
{
    // Filled before the file is written, so that behind a message about that the list still is the
    // database.
    List1Load(change.keyValues);
    if (change.show) {
        change.show();
    }
    stations::Written written;
    if (!change.isOnDisk) {
        written =
            stations::UpdateQTHFile(state_.configuration.workingFile, state_.database,
                                    state_.session.workingFileBytes, state_.session.backupName);
    }
    emit DatabaseChanged(written);
    return written;
}

bool StationListFrame::TakeAndTell(const DatabaseChange& change)
{
    const std::error_code error = TakeDatabaseChange(change).error;
    TellWriteError(window(), dialogs_, error, state_.configuration.workingFile);
    return !error;
}

void StationListFrame::Open(app::ListMode mode, int targetPanel, QWidget* opener)
{
    opener_ = opener;
    List1Load();
    Show(mode, targetPanel);
}

void StationListFrame::Show(app::ListMode mode, int targetPanel)
{
    const QString station = QString::number(targetPanel + 1);
    setTitle(mode == app::ListMode::Get ? u"Station "_s + station + u" Laden"_s
                                        : u"remove => Station "_s + station);
    state_.list.mode = mode;
    state_.list.targetPanel = targetPanel;
    show();
    List1->setFocus();
}

void StationListFrame::ShowMarks(const std::vector<std::size_t>& rows)
{
    if (state_.list.mode == app::ListMode::Nop) {
        setTitle(u"List"_s);
    }
    QWidget* const focused = window()->focusWidget();
    // Not an option button: an arrow key would change the setting.
    if (isHidden() && focused != nullptr && qobject_cast<QRadioButton*>(focused) == nullptr) {
        opener_ = focused;
    }
    show();
    List1->MarkRows(rows);
}

void StationListFrame::Close()
{
    state_.list.mode = app::ListMode::Nop;
    // Before hiding, which would pass the focus on to whatever comes next.
    if (opener_ != nullptr && isAncestorOf(window()->focusWidget())) {
        opener_->setFocus();
    }
    hide();
}

void StationListFrame::ResetSortCombo() const
{
    if (SortCombo->hasFocus()) {
        List1->setFocus();  // not the button beside it, which a key would then press
    }
    SortCombo->setEnabled(false);
    SortCombo->setCurrentIndex(0);
}

void StationListFrame::SortChosen(int entry)
{
    const std::optional<stations::ListKey> key = stations::KeyOfSortEntry(entry);
    if (key) {
        state_.list.key = *key;
        std::vector<double> keyValues =
            stations::KeyValues(state_.database, *key, state_.shown.position[0]);
        if (!state_.database.Empty()) {
            stations::Sort(state_.database, *key, state_.list.order, keyValues);
            TakeAndTell({.keyValues = std::move(keyValues)});
        }
    }
    ResetSortCombo();
    // A later fill must not show distances that are no longer true.
    if (stations::HasKeyValues(state_.list.key)) {
        state_.list.key = stations::ListKey::Callsign;
    }
}

}  // namespace ui
