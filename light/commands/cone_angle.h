// Cone angles: a light keeps them in radians, people type them in degrees.
#pragma once

#include "light/lightcmd/real_question.h"

namespace quor::light {

inline constexpr double largestCone = 160; // degrees

[[nodiscard]] constexpr double toDegrees(double radians) { return radians * 180 / 3.141592653589793; }
[[nodiscard]] constexpr double toRadians(double degrees) { return degrees * 3.141592653589793 / 180; }

// A prompt with an angle, given in radians, in place of its %s, as the drawing shows angles.
[[nodiscard]] inline ZrString withAngle(const Text& prompt, double radians) {
    ZrString shown;
    zrdbAngToS(radians, unitsOfDrawing, precisionOfDrawing, shown);
    return zrFormat(LoadedText(prompt).c_str(), {shown});
}

} // namespace quor::light
