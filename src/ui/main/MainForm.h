// The main window: two stations, their coordinates in five forms, distance and direction, the
// station list and the menus.

#pragma once

#include <array>
#include <memory>

#include <QMainWindow>

#include "app/AppState.h"
#include "app/MainWindowPort.h"
#include "ui/main/FormHeadings.h"

namespace ui {

class CfgForm;
class CoordinateFields;
class Display;
class EditCommands;
class FileCommands;
class MessageBar;
class PictureClip;
class ResultBlock;
class StationCommands;
class StationListFrame;
class StationPanel;
class UserDialogs;

class MainForm : public QMainWindow, public app::MainWindowPort {
    Q_OBJECT

public:
    MainForm(app::AppState& state, UserDialogs& dialogs);
    ~MainForm() override;

    // Loads configuration and database, tells what there is to tell and fills the window. False
    // when the user, asked about a file that cannot be read, wants the program to end; nothing more
    // is written then.
    bool Start();

    void SetStation(int station, const stations::StationTexts& texts,
                    geo::GeoPosition position) override;
    void S1S2_Update() override;
    std::error_code TakeDatabaseChange() override;
    bool IsMarked(std::size_t index) const override;

    PictureClip* PC1;  // the pictures of the buttons

signals:
    void MapWanted();
    void Changed();  // a station or the database, here
    void Ended();    // everything is saved and the window closed

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* NewContents();
    void ConnectPanels();
    void DrawPictures();

    void ShowMap();

    app::AppState& state_;
    UserDialogs& dialogs_;
    DegreeOptions degreeOptions_ = {};
    std::array<StationPanel*, 2> panel_ = {};
    ResultBlock* result_ = nullptr;
    StationListFrame* list_ = nullptr;
    CoordinateFields* fields_ = nullptr;
    CfgForm* configuration_ = nullptr;
    Display* notice_ = nullptr;
    MessageBar* messages_ = nullptr;
    std::unique_ptr<FileCommands> files_;
    std::unique_ptr<EditCommands> edits_;
    std::unique_ptr<StationCommands> stations_;
};

}  // namespace ui
