// How well the reference points agree with each other.

#pragma once

#include <cstddef>
#include <optional>

#include "map/ReferenceTable.h"

namespace map {

// Distance in pixels between a reference point and the place that the others alone give its
// position; none when they give it no place.
std::optional<double> MissedBy(const ReferenceTable& table, std::size_t index);

}  // namespace map
