// Reads lengths and angles as people type them. Pure, and the only place that knows what a number looks like.
#pragma once

#include <optional>
#include <string_view>

#include "host/db/units_settings.h"

namespace quor::units {

// format: a LengthFormat, -1 = the settings'. The whole text must be one number:
//   all formats               15.5  -.5  1e3
//   engineering               1'3.5"  1'-3.5"  5'  3"
//   architectural             the same and 1'-3-1/2"  1'3-1/2"  1'1/2"  3-1/2
//   architectural, fractional 15-1/2  1/2
// A single blank may stand for the "-" before a fraction, so that whatever formatLength writes is read back.
// The result is always finite.
[[nodiscard]] std::optional<double> parseLength(std::wstring_view text, int format, const UnitSettings& settings);

// Gives radians counterclockwise from the X axis, the settings' base and direction taken off, not brought into one
// turn. format: an AngleFormat, -1 = the settings'; it says what a plain number means. In every format:
//   45d  50g  0.7854r  45d30'  45d30'15.5"  N45dE  N 45d0'0" E  N  E  S  W
// A bearing turns from north or south, 0 to 90 degrees, towards east or west. The last ' or " may be missing.
[[nodiscard]] std::optional<double> parseAngle(std::wstring_view text, int format, const UnitSettings& settings);

} // namespace quor::units
