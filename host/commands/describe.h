// What a name that may be typed at the command prompt stands for, in one line.
#pragma once

#include "sdk/sys/string.h"

#include <string_view>

namespace quor {
class Session;
}

namespace quor::commands {

// Of a command what its help page says first, behind its name where an alias or its other name was given; of a system
// variable its value. Empty for what is neither.
[[nodiscard]] ZrString describe(Session& session, std::wstring_view name);

} // namespace quor::commands
