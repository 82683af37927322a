#include "ui/main/MainForm.h"

#include <QGridLayout>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/DefaultStations.h"
#include "ui/Controls.h"
#include "ui/main/CoordinateFields.h"
#include "ui/main/FormHeadings.h"
#include "ui/main/ResultBlock.h"
#include "ui/main/StationPanel.h"

namespace ui {

using namespace Qt::StringLiterals;

MainForm::MainForm(app::AppState& state, UserDialogs& dialogs) : state_(state), dialogs_(dialogs)
{
    setObjectName(u"MainForm"_s);
    setWindowTitle(u"KOMPASSO V0.28"_s);

    // On a screen that is too small for the contents every field stays within reach.
    auto* const scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    QWidget* const contents = NewContents();
    scroll->setWidget(contents);
    setCentralWidget(scroll);
    resize(contents->sizeHint().boundedTo(screen()->availableSize()));

    fields_ = new CoordinateFields(state_, panel_, *headings_, *result_, this);
    panel_[0]->Text1->setFocus();
}

QWidget* MainForm::NewContents()
{
    auto* const contents = new QWidget;
    auto* const column = new QVBoxLayout(contents);
    auto* const grid = new QGridLayout;
    column->addLayout(grid);

    // The grid must know its window before controls are made in it.
    constexpr int kFormSpacing = 18;
    grid->setHorizontalSpacing(kFormSpacing);
    grid->setColumnStretch(StationPanel::kInfo, 1);
    headings_ = new FormHeadings(*grid, 0);
    panel_[0] = new StationPanel(0, *grid, 1);
    panel_[1] = new StationPanel(1, *grid, 1 + StationPanel::kRows);

    result_ = new ResultBlock(contents);
    column->addWidget(result_, 1);
    return contents;
}

void MainForm::ShowStartStations()
{
    fields_->Set_GMS_String();
    for (const int station : {0, 1}) {
        ShowBuiltIn(station);
    }
}

void MainForm::ShowBuiltIn(int station)
{
    const app::BuiltInStation& builtIn = app::kDefaultStations[station];
    StationPanel& panel = *panel_[static_cast<std::size_t>(station)];
    panel.Text14->Show(QString::fromUtf8(builtIn.callsign));
    panel.Text15->Show(QString::fromUtf8(builtIn.name));
    panel.Text16->Show(QString::fromUtf8(builtIn.place));
    for (EntryField* const empty : {panel.Text17, panel.Text18, panel.Text19}) {
        empty->Show({});
    }
    fields_->SetPosition(station, builtIn.position);
}

}  // namespace ui
