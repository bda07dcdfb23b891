// The escapes inside text values of drawing files: \U+XXXX, \M+nXXXX and caret codes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quor::dxf {

struct UnicodeEscape {
    wchar_t character = 0;
    std::size_t length = 0; // of the escape, in characters; 0: there is none
};

// \U+XXXX at the start of the text, in any case; two of them that form a surrogate pair count as one. A lone surrogate
// is no escape: it stays text.
[[nodiscard]] UnicodeEscape parseUnicodeEscape(std::wstring_view text);

// \U+XXXX, or two of them above U+FFFF.
void appendUnicodeEscape(std::string& out, wchar_t c);

struct MultibyteEscape {
    std::string_view codePage; // as in $DWGCODEPAGE
    char bytes[2] = {0, 0};
    std::size_t length = 0; // 8; 0: there is none
};

// \M+nXXXX at the start of the text: n chooses the code page, XXXX are its two bytes.
[[nodiscard]] MultibyteEscape parseMultibyteEscape(std::wstring_view text);

// What follows a caret in a caret code, and the character that it stands for.
struct CaretCode {
    wchar_t letter;
    wchar_t character;
};

constexpr CaretCode caretCodes[] = {{L'J', L'\n'}, {L'M', L'\r'}, {L'I', L'\t'}, {L' ', L'^'}};

} // namespace quor::dxf
