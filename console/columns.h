// Words in columns, as wide as the screen.
#pragma once

#include "sdk/sys/string.h"

#include <vector>

namespace quor::console {

// Lines with their ends; the words run down the columns. Wide characters count twice.
[[nodiscard]] ZrString inColumns(const std::vector<ZrString>& words, std::size_t screenWidth);

} // namespace quor::console
