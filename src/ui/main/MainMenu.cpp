// The menus of the main window as tables, and the commands that only show something.

#include <functional>

#include <QAction>
#include <QFileInfo>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>

#include "ui/Controls.h"
#include "ui/UserDialogs.h"
#include "ui/main/CfgForm.h"
#include "ui/main/EditCommands.h"
#include "ui/main/FileCommands.h"
#include "ui/main/MainForm.h"

namespace ui {

using namespace Qt::StringLiterals;

// A menu item; one without a name is a separator.
struct MainForm::MenuItem {
    const char* name = nullptr;
    QString caption;
    std::function<void()> command;
    QKeySequence shortcut = {};
};

void MainForm::AddMenus()
{
    const auto marking = [this](stations::Equality equality) {
        return [this, equality] { edits_->MarkEqual(equality); };
    };
    AddMenu(u"Datei"_s,
            {
                {"MnuOpen", u"Öffnen"_s, [this] { files_->Open(); }, QKeySequence::Open},
                {"MnuAppend", u"Anfügen"_s, [this] { files_->Append(); }},
                {},
                {"MnuConfig", u"Konfiguration"_s, [this] { configuration_->Edit(); }},
                {},
                {"MnuList", u"Listing"_s, [this] { files_->WriteListing(); }},
                {},
                {"MnuTest", u"Test"_s, [this] { files_->ImportText(); }},
                {"MnuExit", u"Beenden"_s, [this] { close(); }, QKeySequence(u"Ctrl+Q"_s)},
            });
    AddMenu(
        u"Bearbeiten"_s,
        {
            {"MnuGEE", u"gleiche Einträge entfernen"_s, [this] { edits_->RemoveEqualEntries(); }},
            {"MnuDopMark", u"doppelte Einträge markieren"_s, marking(stations::Equality::Full)},
            {"MnuGlPMark", u"gleiche Positionen markieren"_s,
             marking(stations::Equality::Position)},
            {},
            {"MnuMiWert", u"S1 = Mittelwert markierte Stationen"_s,
             [this] { edits_->SetStation1ToMean(); }},
        });
    AddMenu(u"Ansicht"_s, {{"MnuKarte", u"Karte"_s, [this] { ShowMap(); }}});
    AddMenu(u"Hilfe"_s, {
                            {"MnuFaq", u"FAQ"_s, [this] { ShowHelp(); }, QKeySequence(Qt::Key_F1)},
                            {"MnuVers", u"Versionen"_s, [this] { ShowVersions(); }},
                        });
}

void MainForm::AddMenu(const QString& title, std::initializer_list<MenuItem> items)
{
    QMenu* const menu = menuBar()->addMenu(title);
    for (const MenuItem& item : items) {
        if (item.name == nullptr) {
            menu->addSeparator();
            continue;
        }
        QAction* const action = Named(menu->addAction(item.caption), QLatin1StringView(item.name));
        action->setShortcut(item.shortcut);
        connect(action, &QAction::triggered, this, item.command);
    }
}

void MainForm::ShowHelp()
{
    const QString name = u"KOMPLOC1.HLP"_s;
    const QString file = QFileInfo::exists(name)
                             ? QFileInfo(name).absoluteFilePath()
                             : QStandardPaths::locate(QStandardPaths::AppDataLocation, name);
    if (file.isEmpty() || !dialogs_.OpenDocument(file)) {
        dialogs_.Inform(this, {}, u"Die Hilfedatei "_s + name + u" lässt sich nicht öffnen."_s);
    }
}

void MainForm::ShowVersions()
{
    dialogs_.Inform(
        this, u"Kompasso von QQ0AAA"_s,
        u"History\n"
        u"V0.25: kleinere Detailänderungen, Rechengenauigkeit Entfernung verbessert\n"
        u"V0.26: Bug in Entfernungsberechnung der V0.25 beseitigt\n"
        u"V0.27: Direkte GMS/GMH Umschaltung auf der Hauptseite\n"
        u"V0.28: Programmabbruch in Kartendarstellung nach fehlendem Listenupdate beseitigt,\n"
        u"           Stationsanzeige auswählbar, Anzeigeparameter sichern"_s);
}

}  // namespace ui
