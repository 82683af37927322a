// What is said before a station is stored.

#pragma once

#include <string_view>

#include "geo/GeoPosition.h"
#include "stations/StationRecord.h"

class QWidget;

namespace ui {

class UserDialogs;

// False, with a message, for a position that is not finite; false, too, when the texts are together
// too long for a record and the user, asked, does not want them cut. `now` stands in for an empty
// date.
bool MayStore(QWidget& window, UserDialogs& dialogs, int station,
              const stations::StationTexts& texts, geo::GeoPosition position, std::string_view now);

}  // namespace ui
