// The colour of a lamp on a screen: near enough to tell warm from cold, not a measurement.
#pragma once

#include "sdk/db/light.h"

namespace quor::props {

// Of a glowing body of that temperature in Kelvin, as bright as a screen can show it; below 1667 and above 25000 that
// of the nearest of the two.
[[nodiscard]] ZrCmColor colorOfTemperature(double kelvin);
// Of a lamp that is sold under that name. A custom one is white.
[[nodiscard]] ZrCmColor colorOfPreset(LampColorPreset preset);
// What leaves the light: its lamp, seen through its filter.
[[nodiscard]] ZrCmColor resultingColor(const ZrDbLight& light);

} // namespace quor::props
