// The menus of the main window as tables, and the commands that only show something.

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>

#include "ui/Controls.h"
#include "ui/UserDialogs.h"
#include "ui/main/MainForm.h"

namespace ui {

using namespace Qt::StringLiterals;

// A menu item; one without a name is a separator, one without a command is switched off.
struct MainForm::MenuItem {
    const char* name = nullptr;
    QString caption;
    void (MainForm::*command)() = nullptr;
};

void MainForm::AddMenus()
{
    AddMenu(u"Datei"_s, {
                            {"MnuOpen", u"Öffnen"_s},
                            {"MnuAppend", u"Anfügen"_s},
                            {},
                            {"MnuConfig", u"Konfiguration"_s, &MainForm::ShowConfiguration},
                            {},
                            {"MnuList", u"Listing"_s},
                            {},
                            {"MnuTest", u"Test"_s},
                            {"MnuExit", u"Beenden"_s, &MainForm::Exit},
                        });
    AddMenu(u"Bearbeiten"_s, {
                                 {"MnuGEE", u"gleiche Einträge entfernen"_s},
                                 {"MnuDopMark", u"doppelte Einträge markieren"_s},
                                 {"MnuGlPMark", u"gleiche Positionen markieren"_s},
                                 {},
                                 {"MnuMiWert", u"S1 = Mittelwert markierte Stationen"_s},
                             });
    AddMenu(u"Ansicht"_s, {{"MnuKarte", u"Karte"_s, &MainForm::ShowMap}});
    AddMenu(u"Hilfe"_s, {
                            {"MnuFaq", u"FAQ"_s, &MainForm::ShowHelp},
                            {"MnuVers", u"Versionen"_s, &MainForm::ShowVersions},
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
        action->setEnabled(item.command != nullptr);
        if (item.command != nullptr) {
            connect(action, &QAction::triggered, this, item.command);
        }
    }
}

void MainForm::Exit()
{
    close();
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
