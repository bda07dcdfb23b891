// Cone angles: a light keeps them in radians, people type them in degrees.
#pragma once

#include <numbers>

namespace quor::light {

inline constexpr double largestCone = 160; // degrees

[[nodiscard]] constexpr double toDegrees(double radians) { return radians * 180 / std::numbers::pi; }
[[nodiscard]] constexpr double toRadians(double degrees) { return degrees * std::numbers::pi / 180; }

} // namespace quor::light
