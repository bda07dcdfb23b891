// What counts as text where somebody types.
#pragma once

#include "host/sys/utf8.h"
#include "host/texts/input.h"

namespace quor::ed {

// What is wrong with it; null for text. A zero byte is refused because everything that stops there would take what
// stands behind it for unsaid.
[[nodiscard]] inline const Text* whyNoText(std::wstring_view typed) {
    if (holdsEscapedBytes(typed))
        return &texts::kNotUtf8;
    return typed.find(L'\0') != std::wstring_view::npos ? &texts::kZeroByte : nullptr;
}

} // namespace quor::ed
