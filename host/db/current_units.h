// How the current drawing writes and reads numbers.
#pragma once

#include "host/db/units_settings.h"

namespace quor::units {

// The settings of the current drawing, those of a new one when none is open. Read from the drawing once and again after
// a change of its settings, so that asking costs next to nothing. A value outside its range counts as the usual one.
[[nodiscard]] const UnitSettings& currentUnits();

} // namespace quor::units
