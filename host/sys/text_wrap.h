// Long lines of text broken to the width of a screen.
#pragma once

#include "sdk/sys/string.h"

namespace quor {

// The text with each line that is wider than `columns` broken at blanks, beside wide characters between them (never in
// front of closing punctuation or behind opening punctuation). What a line goes on with stands two columns further
// right than the line, or behind its number ("1. "), its box ("[ ] ") or the label that two blanks set apart. Lines
// with more such gaps are rows of a table and stay as they are; so do lines with tabs, and a word that is wider than a
// line.
[[nodiscard]] ZrString wrapped(std::wstring_view text, int columns);

} // namespace quor
