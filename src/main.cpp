// Makes the shared state, the dialogs and the windows, joins them and runs the event loop.

#include <cstdlib>

#include <QApplication>
#include <QLocale>
#include <QPointer>
#include <QStandardPaths>

#include "app/AppState.h"
#include "app/ProgramFolder.h"
#include "ui/FileNameText.h"
#include "ui/GermanTexts.h"
#include "ui/UserDialogs.h"
#include "ui/main/MainForm.h"
#include "ui/map/Gform.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Kompasso"_s);
    QCoreApplication::setApplicationVersion(QLatin1StringView(KOMPASSO_VERSION));
    ui::InstallGermanTexts();
    ui::QtDialogs dialogs;

    const std::string ownFolder = ui::Native(QCoreApplication::applicationDirPath());
    const std::string folder = app::ProgramFolder(
        ownFolder, ui::Native(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    if (app::EnterFolder(folder)) {
        dialogs.Inform(nullptr, u"Kompasso Setup-Fehler"_s,
                       u"Der Ordner "_s + ui::Shown(folder)
                           + u" lässt sich nicht anlegen oder betreten."_s);
        return EXIT_FAILURE;
    }

    app::AppState state;
    if (app::IsPassedOver(ownFolder, folder)) {
        state.session.passedOverFolder = ownFolder;
    }
    state.numberFormat = base::NumberFormat(QLocale::system().decimalPoint().toStdString());
    ui::MapImage mapImage;
    ui::MainForm window(state, dialogs);
    if (!window.Start()) {
        return EXIT_FAILURE;
    }
    QObject::connect(&window, &ui::MainForm::Ended, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    // The map window exists only while it is open.
    QPointer<ui::Gform> map;
    QObject::connect(&window, &ui::MainForm::MapWanted, [&] {
        if (map.isNull()) {
            map = new ui::Gform(state, mapImage, window, dialogs);
        }
        map->setWindowState(map->windowState() & ~Qt::WindowMinimized);
        map->show();
        map->raise();
        map->activateWindow();
    });
    QObject::connect(&window, &ui::MainForm::Changed, [&] {
        if (!map.isNull()) {
            map->AutoRedraw();
        }
    });
    window.show();
    const int result = QApplication::exec();
    delete map;
    return result;
}
