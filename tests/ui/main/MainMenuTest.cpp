#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>

#include "TemporaryFolder.h"
#include "ui/main/CfgForm.h"
#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedDialogs::Message;
using Messages = std::vector<Message>;

// The folders that hold what is installed, replaced by two of the test's own.
class DataFolders {
public:
    explicit DataFolders(const QString& folder)
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(folder + u"/user"_s));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(folder + u"/system"_s));
    }
    ~DataFolders()
    {
        Restore("XDG_DATA_HOME", home_);
        Restore("XDG_DATA_DIRS", dirs_);
    }
    DataFolders(const DataFolders&) = delete;
    DataFolders& operator=(const DataFolders&) = delete;

private:
    static void Restore(const char* name, const QByteArray& value)
    {
        if (value.isNull()) {
            qunsetenv(name);
        } else {
            qputenv(name, value);
        }
    }

    QByteArray home_ = qgetenv("XDG_DATA_HOME");
    QByteArray dirs_ = qgetenv("XDG_DATA_DIRS");
};

class MainMenuTest : public MainFormFixture {
protected:
    // Opens the menu with the mouse and clicks on its item.
    void Choose(const char* name)
    {
        auto* const action = Find<QAction>(name);
        for (QAction* const title : window.menuBar()->actions()) {
            if (!title->menu()->actions().contains(action)) {
                continue;
            }
            QTest::mouseClick(window.menuBar(), Qt::LeftButton, {},
                              window.menuBar()->actionGeometry(title).center());
            ASSERT_TRUE(QTest::qWaitForWindowExposed(title->menu()));
            QTest::mouseClick(title->menu(), Qt::LeftButton, {},
                              title->menu()->actionGeometry(action).center());
            ASSERT_FALSE(title->menu()->isVisible());
            return;
        }
        FAIL() << name << " is in no menu";
    }
};

TEST_F(MainMenuTest, EveryMenuHasItsItemsInOrder)
{
    const struct {
        QString title;
        std::vector<std::pair<QString, QString>> items;  // name and caption; neither: a separator
    } menus[] = {
        {u"Datei"_s,
         {{u"MnuOpen"_s, u"Öffnen"_s},
          {u"MnuAppend"_s, u"Anfügen"_s},
          {},
          {u"MnuConfig"_s, u"Konfiguration"_s},
          {},
          {u"MnuList"_s, u"Listing"_s},
          {},
          {u"MnuTest"_s, u"Test"_s},
          {u"MnuExit"_s, u"Beenden"_s}}},
        {u"Bearbeiten"_s,
         {{u"MnuGEE"_s, u"gleiche Einträge entfernen"_s},
          {u"MnuDopMark"_s, u"doppelte Einträge markieren"_s},
          {u"MnuGlPMark"_s, u"gleiche Positionen markieren"_s},
          {},
          {u"MnuMiWert"_s, u"S1 = Mittelwert markierte Stationen"_s}}},
        {u"Ansicht"_s, {{u"MnuKarte"_s, u"Karte"_s}}},
        {u"Hilfe"_s, {{u"MnuFaq"_s, u"FAQ"_s}, {u"MnuVers"_s, u"Versionen"_s}}},
    };
    const QList<QAction*> titles = window.menuBar()->actions();
    ASSERT_EQ(titles.size(), qsizetype{std::size(menus)});
    for (int m = 0; m < titles.size(); ++m) {
        SCOPED_TRACE(menus[m].title.toStdString());
        EXPECT_EQ(titles[m]->text(), menus[m].title);
        const QList<QAction*> items = titles[m]->menu()->actions();
        ASSERT_EQ(items.size(), static_cast<qsizetype>(menus[m].items.size()));
        for (int i = 0; i < items.size(); ++i) {
            const auto& [name, caption] = menus[m].items[static_cast<std::size_t>(i)];
            EXPECT_EQ(items[i]->isSeparator(), name.isEmpty());
            EXPECT_EQ(items[i]->objectName(), name);
            EXPECT_EQ(items[i]->text(), caption);
            EXPECT_TRUE(items[i]->isEnabled());
        }
    }
}

TEST_F(MainMenuTest, KonfigurationOpensItsDialog)
{
    auto* const form = window.findChild<CfgForm*>();
    Choose("MnuConfig");
    EXPECT_TRUE(form->isVisible());
    form->reject();
}

TEST_F(MainMenuTest, TheMenuAndTheButtonForTheMapWantItWithTheStationsOfThePanels)
{
    std::vector<std::string> callsigns;
    QObject::connect(&window, &MainForm::MapWanted, [&] {
        callsigns.push_back(state.shown.record[0].Text(stations::Field::Callsign) + ' '
                            + state.shown.record[1].Text(stations::Field::Callsign));
    });
    Choose("MnuKarte");
    Type("Text14_1", u"DL1ABC"_s);
    Click("Command5");
    EXPECT_EQ(callsigns, (std::vector<std::string>{"QQ0AAA QQ0RR", "QQ0AAA DL1ABC"}));
    EXPECT_TRUE(window.isEnabled());
}

TEST_F(MainMenuTest, VersionenTellsTheHistory)
{
    Choose("MnuVers");
    EXPECT_EQ(
        dialogs.said,
        (Messages{{u"Kompasso von QQ0AAA"_s,
                   u"History\n"
                   u"V0.25: kleinere Detailänderungen, Rechengenauigkeit Entfernung verbessert\n"
                   u"V0.26: Bug in Entfernungsberechnung der V0.25 beseitigt\n"
                   u"V0.27: Direkte GMS/GMH Umschaltung auf der Hauptseite\n"
                   u"V0.28: Programmabbruch in Kartendarstellung nach fehlendem Listenupdate "
                   u"beseitigt,\n"
                   u"           Stationsanzeige auswählbar, Anzeigeparameter sichern"_s}}));
}

TEST_F(MainMenuTest, FaqOpensTheHelpFileOfTheProgramDirectory)
{
    const DataFolders installed(folder.path());
    PutFile("KOMPLOC1.HLP", "help");
    Choose("MnuFaq");
    EXPECT_EQ(dialogs.opened, std::vector<QString>{folder.filePath(u"KOMPLOC1.HLP"_s)});
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(MainMenuTest, FaqOpensTheInstalledHelpFileWhenTheProgramDirectoryHasNone)
{
    const DataFolders installed(folder.path());
    const QString data = folder.filePath(u"system/"_s + QCoreApplication::applicationName());
    ASSERT_TRUE(QDir().mkpath(data));
    PutFile((data + u"/KOMPLOC1.HLP"_s).toStdString(), "help");
    Choose("MnuFaq");
    EXPECT_EQ(dialogs.opened, std::vector<QString>{data + u"/KOMPLOC1.HLP"_s});
}

TEST_F(MainMenuTest, FaqNamesTheHelpFileWhenItIsMissingOrNothingOpensIt)
{
    const DataFolders installed(folder.path());
    const Message sorry = {{}, u"Die Hilfedatei KOMPLOC1.HLP lässt sich nicht öffnen."_s};
    Choose("MnuFaq");
    EXPECT_EQ(dialogs.said, Messages{sorry});
    EXPECT_TRUE(dialogs.opened.empty());
    PutFile("KOMPLOC1.HLP", "help");
    dialogs.canOpen = false;
    Choose("MnuFaq");
    EXPECT_EQ(dialogs.said, (Messages{sorry, sorry}));
    EXPECT_EQ(dialogs.opened.size(), 1U);
}

TEST_F(MainMenuTest, BeendenSavesOnceAndEndsTheProgramWithoutAQuestion)
{
    const QSignalSpy ended(&window, &MainForm::Ended);
    Type("Text14_0", u"DL1ABC"_s);
    Choose("MnuExit");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_EQ(stations::TextsOf(stations::ReadConfiguration("KOMP_LOC.CFG").configuration.station1)
                  .callsign,
              "DL1ABC");
    ASSERT_TRUE(QFile::remove(u"KOMP_LOC.CFG"_s));
    window.close();
    EXPECT_FALSE(QFile::exists(u"KOMP_LOC.CFG"_s)) << "written once per run";
}

}  // namespace
}  // namespace ui
