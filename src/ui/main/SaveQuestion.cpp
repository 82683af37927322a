#include "ui/main/SaveQuestion.h"

#include <cmath>
#include <vector>

#include <QStringList>

#include "ui/UserDialogs.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

QString NameOf(stations::Field field)
{
    using stations::Field;
    switch (field) {
    case Field::Callsign: return u"Rufzeichen"_s;
    case Field::Name: return u"Name"_s;
    case Field::Place: return u"Ort"_s;
    case Field::Frequency: return u"Frequenz"_s;
    case Field::Remark: return u"Anmerkung"_s;
    case Field::Date: return u"Datum"_s;
    case Field::Reserved6:
    case Field::Reserved7: break;
    }
    return {};
}

}  // namespace

bool MayStore(QWidget& window, UserDialogs& dialogs, int station,
              const stations::StationTexts& texts, geo::GeoPosition position, std::string_view now)
{
    const QString name = u"Station %1"_s.arg(station + 1);
    if (!std::isfinite(position.latitude) || !std::isfinite(position.longitude)) {
        dialogs.Inform(&window, {},
                       u"Die Koordinaten von "_s + name
                           + u" ergeben keine Position, der Eintrag wird nicht gesichert!"_s);
        return false;
    }
    QStringList cut;
    for (const stations::Field field : stations::CutFields(texts, now)) {
        cut << NameOf(field);
    }
    return cut.isEmpty()
           || dialogs.AskOkCancel(
               &window, u"Sichern"_s,
               u"Die Texte von "_s + name
                   + u" sind zusammen zu lang für einen Eintrag. Gekürzt oder weggelassen:\n"_s
                   + cut.join(u", "_s) + u"\nTrotzdem sichern?"_s);
}

}  // namespace ui
