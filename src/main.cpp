// Makes the shared state, the dialogs and the windows, joins them and runs the event loop.

#include <QApplication>
#include <QLocale>

#include "app/AppState.h"
#include "ui/GermanTexts.h"
#include "ui/UserDialogs.h"
#include "ui/main/MainForm.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Kompasso"_s);
    ui::InstallGermanTexts();

    app::AppState state;
    state.numberFormat = base::NumberFormat(QLocale::system().decimalPoint().toStdString());
    ui::QtDialogs dialogs;
    ui::MainForm window(state, dialogs);
    window.ShowStartStations();
    window.show();
    return QApplication::exec();
}
