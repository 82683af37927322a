#include "ui/main/MainMenu.h"

#include <initializer_list>

#include <QFileInfo>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>

#include "ui/MenuTable.h"
#include "ui/UserDialogs.h"
#include "ui/main/CfgForm.h"
#include "ui/main/EditCommands.h"
#include "ui/main/FileCommands.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

void AddMenu(QMainWindow& window, const QString& title, std::initializer_list<MenuItem> items)
{
    AddItems(window.menuBar()->addMenu(title), items);
}

void ShowHelp(QMainWindow& window, UserDialogs& dialogs)
{
    const QString name = u"KOMPLOC1.HLP"_s;
    const QString file = QFileInfo::exists(name)
                             ? QFileInfo(name).absoluteFilePath()
                             : QStandardPaths::locate(QStandardPaths::AppDataLocation, name);
    if (file.isEmpty() || !dialogs.OpenDocument(file)) {
        dialogs.Inform(&window, {}, u"Die Hilfedatei "_s + name + u" lässt sich nicht öffnen."_s);
    }
}

void ShowVersions(QMainWindow& window, UserDialogs& dialogs)
{
    dialogs.Inform(
        &window, u"Kompasso von QQ0AAA"_s,
        u"History\n"
        u"V0.25: kleinere Detailänderungen, Rechengenauigkeit Entfernung verbessert\n"
        u"V0.26: Bug in Entfernungsberechnung der V0.25 beseitigt\n"
        u"V0.27: Direkte GMS/GMH Umschaltung auf der Hauptseite\n"
        u"V0.28: Programmabbruch in Kartendarstellung nach fehlendem Listenupdate beseitigt,\n"
        u"           Stationsanzeige auswählbar, Anzeigeparameter sichern"_s);
}

}  // namespace

void AddMainMenu(QMainWindow& window, UserDialogs& dialogs, FileCommands& files,
                 EditCommands& edits, CfgForm& configuration, const std::function<void()>& showMap)
{
    const auto marking = [&edits](stations::Equality equality) {
        return [&edits, equality](bool) { edits.MarkEqual(equality); };
    };
    AddMenu(
        window, u"Datei"_s,
        {
            {"MnuOpen", u"Öffnen"_s, [&files](bool) { files.Open(); }, false, QKeySequence::Open},
            {"MnuAppend", u"Anfügen"_s, [&files](bool) { files.Append(); }},
            {},
            {"MnuConfig", u"Konfiguration"_s, [&configuration](bool) { configuration.Edit(); }},
            {},
            {"MnuList", u"Listing"_s, [&files](bool) { files.WriteListing(); }},
            {},
            {"MnuTest", u"Test"_s, [&files](bool) { files.ImportText(); }},
            {"MnuExit", u"Beenden"_s, [&window](bool) { window.close(); }, false,
             QKeySequence(u"Ctrl+Q"_s)},
        });
    AddMenu(window, u"Bearbeiten"_s,
            {
                {"MnuGEE", u"gleiche Einträge entfernen"_s,
                 [&edits](bool) { edits.RemoveEqualEntries(); }},
                {"MnuDopMark", u"doppelte Einträge markieren"_s, marking(stations::Equality::Full)},
                {"MnuGlPMark", u"gleiche Positionen markieren"_s,
                 marking(stations::Equality::Position)},
                {},
                {"MnuMiWert", u"S1 = Mittelwert markierte Stationen"_s,
                 [&edits](bool) { edits.SetStation1ToMean(); }},
            });
    AddMenu(window, u"Ansicht"_s, {{"MnuKarte", u"Karte"_s, [showMap](bool) { showMap(); }}});
    AddMenu(window, u"Hilfe"_s,
            {
                {"MnuFaq", u"FAQ"_s, [&window, &dialogs](bool) { ShowHelp(window, dialogs); },
                 false, QKeySequence(Qt::Key_F1)},
                {"MnuVers", u"Versionen"_s,
                 [&window, &dialogs](bool) { ShowVersions(window, dialogs); }},
            });
}

}  // namespace ui
