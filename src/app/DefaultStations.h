// What the program shows before the user has stored anything.

#pragma once

#include "geo/GeoPosition.h"

namespace app {

// A station as its panel shows it; texts are UTF-8.
struct BuiltInStation {
    const char* callsign;
    const char* name;
    const char* place;
    geo::GeoPosition position;
};

inline constexpr BuiltInStation kDefaultStations[2] = {
    {.callsign = "QQ0AAA",
     .name = "Muster",
     .place = "Musterdorf",
     .position = {.latitude = 48.35, .longitude = 11.45}},
    {.callsign = "QQ0RR",
     .name = "Zugspitzrelais",
     .place = "Zugspitze",
     .position = {.latitude = 47.422778, .longitude = 10.986667}},
};

}  // namespace app
