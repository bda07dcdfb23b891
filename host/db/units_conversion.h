// Factors between the units of length of a drawing (INSUNITS).
#pragma once

#include <optional>

namespace quor::units {

// How many units `to` one unit `from` is long. 0, unitless, gives 1 with every unit; nothing for values outside 0
// to 24.
[[nodiscard]] std::optional<double> unitsConversion(int from, int to);

} // namespace quor::units
