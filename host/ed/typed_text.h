// What counts as text where somebody types.
#pragma once

#include "host/sys/utf8.h"

namespace quor::ed {

// Whether it was valid UTF-8 without a zero byte: no text holds one, and behind it every comparison that stops there
// would take the rest for unsaid.
[[nodiscard]] inline bool isText(std::wstring_view typed) {
    return !holdsEscapedBytes(typed) && typed.find(L'\0') == std::wstring_view::npos;
}

} // namespace quor::ed
