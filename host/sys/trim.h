// Texts of people and files without the blanks around them.
#pragma once

#include <string_view>

namespace quor {

// Line ends count as blanks.
[[nodiscard]] inline std::wstring_view trimmed(std::wstring_view text) {
    constexpr std::wstring_view kBlanks = L" \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::wstring_view::npos ? std::wstring_view()
                                            : text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

} // namespace quor
