// The lines of "Eigenschaften", UTF-8.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/MapState.h"
#include "base/NumberText.h"
#include "map/Georeference.h"

namespace ui {

// `text` followed by " ein" when the switch is on, else by " aus".
std::string CheckSuffix(std::string_view text, bool on);

// Modes, size and name of the picture, the number of reference points and a line for each.
// `imageName` is UTF-8.
std::vector<std::string> PropertyLines(const app::MapState& map, map::ImageSize image,
                                       std::string_view imageName,
                                       const base::NumberFormat& format);

}  // namespace ui
