// Names and keywords without regard to case, the same in every locale: one character folds to one character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quor {

// Simple case folding of Latin, Greek, Cyrillic, Armenian, circled and full-width letters and Roman numerals; every
// other character is itself. Nothing outside ASCII folds into ASCII, so no look-alike passes for a keyword.
[[nodiscard]] inline wchar_t foldChar(wchar_t c);
[[nodiscard]] std::wstring foldCase(std::wstring_view text);
[[nodiscard]] bool equalFolded(std::wstring_view a, std::wstring_view b);
[[nodiscard]] bool startsWithFolded(std::wstring_view text, std::wstring_view beginning);
// Below, at or above zero as a stands before, with or after b in folded code point order.
[[nodiscard]] int compareFolded(std::wstring_view a, std::wstring_view b);
[[nodiscard]] std::size_t hashFolded(std::wstring_view text);

// The part of foldChar() that needs the table: characters outside ASCII.
[[nodiscard]] wchar_t foldWide(wchar_t c);

inline wchar_t foldChar(wchar_t c) {
    if (c < 0 || c >= 0x80)
        return foldWide(c);
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

// For containers that are searched without regard to case.
struct FoldedHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view text) const { return hashFolded(text); }
};
struct FoldedEqual {
    using is_transparent = void;
    bool operator()(std::wstring_view a, std::wstring_view b) const { return equalFolded(a, b); }
};
struct FoldedLess {
    using is_transparent = void;
    bool operator()(std::wstring_view a, std::wstring_view b) const { return compareFolded(a, b) < 0; }
};

} // namespace quor
