// Compares the prepared blends with the step-by-step form, and both with the exact one.

#pragma once

#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"

namespace map {

inline constexpr double kPixelBound = 1e-6;
inline constexpr double kDegreeBound = 1e-9;

// The prepared form agrees with the step-by-step form within the bound; where that form itself is
// off the exact result by more than a tenth of the bound, with the exact result.
testing::AssertionResult ForwardAgrees(std::span<const ReferencePoint> points,
                                       std::span<const geo::GeoPosition> positions);
testing::AssertionResult InverseAgrees(std::span<const ReferencePoint> points,
                                       std::span<const Pixel> pixels);

}  // namespace map
