#include "ui/map/MapProperties.h"

namespace ui {

std::string CheckSuffix(std::string_view text, bool on)
{
    return std::string(text) + (on ? " ein" : " aus");
}

std::vector<std::string> PropertyLines(const app::MapState& map, map::ImageSize image,
                                       std::string_view imageName, const base::NumberFormat& format)
{
    std::vector<std::string> lines = {
        CheckSuffix("Bildmodus: ", map.mapImage),
        CheckSuffix("Referenzmodus: ", map.references.ReferenceMode()),
        "Bildbreite: " + std::to_string(image.width),
        "Bildhöhe: " + std::to_string(image.height),
        "Bild: " + std::string(imageName),
        std::to_string(map.references.RefCount()) + " Referenzpunkte: ",
    };
    double number = 0.0;
    for (const map::ReferencePoint& point : map.references.Points()) {
        number += 1.0;
        lines.push_back("Ref" + format(number, "0") + ":  X=" + format.Plain(point.X) + "  Y="
                        + format.Plain(point.Y) + "  B=" + format(point.Latitude, "0.000000")
                        + "  L=" + format(point.Longitude, "0.000000"));
    }
    return lines;
}

}  // namespace ui
