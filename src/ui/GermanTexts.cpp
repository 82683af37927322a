#include "ui/GermanTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace ui {

using namespace Qt::StringLiterals;

void InstallGermanTexts()
{
    auto* const translator = new QTranslator(qApp);
    const QString name = u"qtbase_de"_s;
    if (translator->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))
        || translator->load(name, u":/translations"_s)) {
        QCoreApplication::installTranslator(translator);
    }
}

}  // namespace ui
