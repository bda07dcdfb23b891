// Writes lengths and angles in the formats of a drawing. Pure: the same arguments always give the same text.
#pragma once

#include <string>

#include "host/db/units_settings.h"

namespace quor::units {

// format: a LengthFormat, -1 = the settings'. precision: 0 to 8, above counts as 8, -1 = the settings'.
// Halves round away from zero in fractions, to even in decimals; what rounds to zero has no sign.
// Empty when the value is not finite or the format unknown.
[[nodiscard]] std::wstring formatLength(double value, int format, int precision, const UnitSettings& settings);

// An angle in radians counterclockwise from the X axis, shown relative to the settings' base and direction as a value
// of at least zero and less than one turn. Empty when it is not finite or the format unknown.
[[nodiscard]] std::wstring formatAngle(double radians, int format, int precision, const UnitSettings& settings);

} // namespace quor::units
