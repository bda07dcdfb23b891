// How many columns a text takes in a terminal, and texts padded to a width: Chinese characters are two columns wide.
#pragma once

#include "sdk/sys/string.h"

namespace quor {

// 0 for combining and control characters, 2 for wide East Asian characters and emoji, else 1.
[[nodiscard]] int columnsOf(wchar_t c);
[[nodiscard]] int columnsOf(std::wstring_view text);
// The text with blanks behind it up to `columns`; a longer one stays as it is.
[[nodiscard]] ZrString padRight(std::wstring_view text, int columns);
[[nodiscard]] ZrString padLeft(std::wstring_view text, int columns);

// A word that somebody typed as messages show it: of a very long one the beginning, and "…".
[[nodiscard]] ZrString shortened(std::wstring_view word);

} // namespace quor
