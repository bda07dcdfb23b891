// How texts lie on a screen: words in columns, lines that take several rows.
#pragma once

#include "sdk/sys/string.h"

#include <vector>

namespace quor::console {

// Lines with their ends; the words run down the columns. Wide characters count twice.
[[nodiscard]] ZrString inColumns(const std::vector<ZrString>& words, std::size_t screenWidth);

// The row, from 0, on which a cursor stands behind the text, on a screen that goes on in the next row where one is
// full; a wide character does not lie on two rows.
[[nodiscard]] int lastRowOf(std::wstring_view text, int screenWidth);

} // namespace quor::console
