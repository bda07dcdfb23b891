// Texts of people and files as they may be shown: a terminal obeys control characters, so none reaches it.
#pragma once

#include "sdk/sys/string.h"

#include <string_view>

namespace quor {

// Whether a character commands a terminal or turns the order of what is shown instead of being shown itself: the
// control characters, line and paragraph separators, the marks of writing direction.
[[nodiscard]] bool isControl(wchar_t c);

// The text with each of those spelled out: "^[" for Esc, "U+009B" for one without such a name.
[[nodiscard]] ZrString visibleText(std::wstring_view text);

} // namespace quor
