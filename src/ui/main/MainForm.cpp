#include "ui/main/MainForm.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/ShutDown.h"
#include "app/StartUp.h"
#include "ui/Controls.h"
#include "ui/DatabaseActions.h"
#include "ui/UserDialogs.h"
#include "ui/main/CfgForm.h"
#include "ui/main/CoordinateFields.h"
#include "ui/main/Display.h"
#include "ui/main/EditCommands.h"
#include "ui/main/FileCommands.h"
#include "ui/main/MainMenu.h"
#include "ui/main/MessageBar.h"
#include "ui/main/PictureClip.h"
#include "ui/main/ResultBlock.h"
#include "ui/main/RunMessages.h"
#include "ui/main/StationCommands.h"
#include "ui/main/StationListFrame.h"
#include "ui/main/StationListView.h"
#include "ui/main/StationPanel.h"

namespace ui {

using namespace Qt::StringLiterals;

MainForm::MainForm(app::AppState& state, UserDialogs& dialogs)
    : PC1(Named(new PictureClip(this), u"PC1"_s)), state_(state), dialogs_(dialogs)
{
    setObjectName(u"MainForm"_s);
    setWindowTitle(u"KOMPASSO V"_s + QLatin1StringView(KOMPASSO_SERIES));

    // On a screen that is too small for the contents every field stays within reach.
    auto* const scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    QWidget* const contents = NewContents();
    scroll->setWidget(contents);
    messages_ = new MessageBar;
    auto* const whole = new QWidget;
    auto* const column = new QVBoxLayout(whole);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(messages_);
    column->addWidget(scroll, 1);
    setCentralWidget(whole);
    constexpr int kUsualHeight = 660;  // shows a dozen lines of the list
    resize(QSize(contents->sizeHint().width(), kUsualHeight).boundedTo(screen()->availableSize()));

    fields_ = new CoordinateFields(state_, panel_, degreeOptions_, *result_, this);
    configuration_ = new CfgForm(state_, this);
    notice_ = new Display(this);
    files_ = std::make_unique<FileCommands>(*this, state_, dialogs_, *list_, *notice_, *messages_);
    edits_ = std::make_unique<EditCommands>(state_, *this, *list_);
    stations_ =
        std::make_unique<StationCommands>(state_, dialogs_, *this, panel_, *list_, *notice_);
    AddMainMenu(*this, dialogs_, *files_, *edits_, *configuration_, [this] { ShowMap(); });
    ConnectPanels();
    connect(fields_, &CoordinateFields::StationsChanged, this, &MainForm::Changed);
    connect(list_, &StationListFrame::DatabaseChanged, this,
            [this](const stations::Written& written) {
                TellKept(state_, *messages_, written);
                emit Changed();
            });
    connect(list_->List1, &StationListView::LineChosen, this,
            [this](int row) { stations_->TakeLine(row); });
    connect(list_->Command7, &QPushButton::clicked, this, [this] { files_->SaveMarked(); });
    connect(list_->Command6, &QPushButton::clicked, this, [this] { files_->MoveOutMarked(); });
    connect(result_->Command5, &QPushButton::clicked, this, &MainForm::ShowMap);
    connect(configuration_, &CfgForm::Confirmed, fields_, &CoordinateFields::TakeConfiguration);
    DrawPictures();
    list_->SetOpener(panel_[0]->Command1);
    list_->Close();
    panel_[0]->Text[1]->setFocus();
}

MainForm::~MainForm() = default;

QWidget* MainForm::NewContents()
{
    auto* const contents = new QWidget;
    auto* const column = new QVBoxLayout(contents);
    auto* const grid = new QGridLayout;
    column->addLayout(grid);

    constexpr int kFormSpacing = 18;
    grid->setHorizontalSpacing(kFormSpacing);
    grid->setColumnStretch(StationPanel::Info, 1);
    degreeOptions_ = AddFormHeadings(*grid, 0);
    panel_[0] = new StationPanel(0, *grid, 1);
    panel_[1] = new StationPanel(1, *grid, 1 + StationPanel::kRows);

    auto* const line = new QHBoxLayout;
    column->addLayout(line, 1);
    result_ = new ResultBlock(contents);
    list_ = new StationListFrame(state_, dialogs_, contents);
    constexpr int kListStretch = 2;
    line->addWidget(result_, 1);
    line->addWidget(list_, kListStretch);
    return contents;
}

void MainForm::ConnectPanels()
{
    for (StationPanel* const panel : panel_) {
        const int station = panel->station;
        connect(panel->Command1, &QPushButton::clicked, this,
                [=, this] { list_->Open(app::ListMode::Get, station, panel->Command1); });
        connect(panel->Command4, &QPushButton::clicked, this,
                [=, this] { list_->Open(app::ListMode::Clear, station, panel->Command4); });
        connect(panel->SA, &QPushButton::clicked, this,
                [this, station] { stations_->Save(station); });
        // Texts that are set otherwise come with a position, whose change tells of both.
        for (EntryField* const field : panel->StationFields()) {
            connect(field, &EntryField::Entered, this, &MainForm::Changed);
        }
    }
}

void MainForm::DrawPictures()
{
    PC1->Draw(palette(), devicePixelRatioF());
    for (StationPanel* const panel : panel_) {
        panel->Command1->setIcon(PC1->Icon(PictureClip::Load));
        panel->Command4->setIcon(PC1->Icon(PictureClip::Remove));
        panel->SA->setIcon(PC1->Icon(PictureClip::Save));
    }
    result_->Command5->setIcon(PC1->Icon(PictureClip::Map));
    list_->Command2->setIcon(PC1->Icon(PictureClip::Close));
    list_->Command3->setIcon(PC1->Icon(PictureClip::Sort));
    list_->Command6->setIcon(PC1->Icon(PictureClip::MoveOut));
    list_->Command7->setIcon(PC1->Icon(PictureClip::Save));
}

bool MainForm::Start()
{
    TellPassedOver(state_.session, *messages_);
    if (!TellStart(*this, dialogs_, *messages_, app::LoadAtStartUp(state_))) {
        return false;
    }
    fields_->Set_GMS_String();
    for (const int station : {0, 1}) {
        const app::StartStation shown = app::StationAtStartUp(state_.configuration, station);
        SetStation(station, shown.texts, shown.position);
    }
    list_->List1Load();
    return true;
}

void MainForm::SetStation(int station, const stations::StationTexts& texts,
                          geo::GeoPosition position)
{
    panel_[static_cast<std::size_t>(station)]->ShowTexts(texts);
    fields_->SetPosition(station, position);
}

void MainForm::S1S2_Update()
{
    state_.shown.record = {stations_->NewRecord(0), stations_->NewRecord(1)};
}

std::error_code MainForm::TakeDatabaseChange()
{
    return list_->TakeDatabaseChange().error;
}

bool MainForm::IsMarked(std::size_t index) const
{
    return list_->List1->IsMarked(index);
}

void MainForm::ShowMap()
{
    S1S2_Update();
    list_->List1Check();  // the map asks for the mark of every record
    emit MapWanted();
}

void MainForm::closeEvent(QCloseEvent* event)
{
    S1S2_Update();
    TellWriteError(this, dialogs_, app::SaveAtEnd(state_), state_.session.configurationName);
    event->accept();
    emit Ended();
}

void MainForm::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && list_ != nullptr) {
        DrawPictures();
    }
}

}  // namespace ui
