// The value of one property of one object.
#pragma once

#include "sdk/cm/color.h"
#include "sdk/sys/string.h"

#include <variant>

namespace quor::props {

// int: the place in a list of choices. std::monostate: the object has no such value.
using Value = std::variant<std::monostate, bool, int, double, ZrString, ZrCmColor>;

} // namespace quor::props
