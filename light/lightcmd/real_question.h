// Numbers in prompts and replies: how they are shown, and the question for one that shows the one that counts now.
#pragma once

#include "light/res/load_text.h"
#include "sdk/db/units.h"
#include "sdk/ed/get.h"
#include "sdk/sys/format.h"

#include <cmath>

namespace quor::light {

// Unit modes of the conversions between numbers and texts, and their precision.
inline constexpr int decimalUnits = 2;
inline constexpr int unitsOfDrawing = -1;
inline constexpr int precisionOfDrawing = -1;

// A number as a prompt shows it; 0 for what no number can hold.
[[nodiscard]] inline ZrString shownNumber(double value, int units = decimalUnits) {
    ZrString shown;
    zrdbRToS(std::isfinite(value) ? value : 0.0, units, precisionOfDrawing, shown);
    return shown;
}

// A prompt with the number in place of its %s.
[[nodiscard]] inline ZrString withNumber(const Text& prompt, double value, int units = decimalUnits) {
    return zrFormat(LoadedText(prompt).c_str(), {shownNumber(value, units)});
}

// A prompt with an angle, given in radians, in place of its %s, as the drawing shows angles.
[[nodiscard]] inline ZrString withAngle(const Text& prompt, double radians) {
    ZrString shown;
    zrdbAngToS(radians, unitsOfDrawing, precisionOfDrawing, shown);
    return zrFormat(LoadedText(prompt).c_str(), {shown});
}

// Asks for a number that is not negative and shows the one that is there. Answers the result code; RTNORM with the
// number in `value`, which else stays as it was.
[[nodiscard]] inline int askReal(const Text& prompt, double& value, int units = decimalUnits) {
    const ZrString question = withNumber(prompt, value, units);
    zredInitGet(RSG_NONEG, nullptr);
    return zredGetReal(question.c_str(), value);
}

} // namespace quor::light
