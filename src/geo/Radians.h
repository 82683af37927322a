// Degrees, in which every angle is stored and shown, and radians, in which it is computed.

#pragma once

#include <numbers>

namespace geo {

inline constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;
inline constexpr double kRadiansPerDegree = std::numbers::pi / 180.0;

}  // namespace geo
