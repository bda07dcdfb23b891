// The colour in which a lamp glows.
#pragma once

#include "sdk/db/light.h"

#include <cstdint>

namespace quor::gs {

// The colour temperature in kelvin that a preset stands for.
[[nodiscard]] double temperatureOf(LampColorPreset preset);
// 0xRRGGBB of a glowing body, as bright as a colour can be; white at the daylight of D65.
[[nodiscard]] std::uint32_t glowRgb(double kelvin);
// Of two colours, what light of the one leaves behind a filter of the other.
[[nodiscard]] std::uint32_t filteredRgb(std::uint32_t light, std::uint32_t filter);

} // namespace quor::gs
