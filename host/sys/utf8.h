// Text between files and memory: UTF-8 bytes to and from wide strings, without loss.
#pragma once

#include <string>
#include <string_view>

namespace quor {

// A byte that is not part of valid UTF-8 becomes one of these lone surrogates, U+DC80 to U+DCFF, and is written back
// as that byte. So every byte sequence survives fromUtf8 followed by toUtf8.
[[nodiscard]] constexpr wchar_t escapedByte(unsigned char byte) { return static_cast<wchar_t>(0xDC00 + byte); }
[[nodiscard]] constexpr bool isEscapedByte(wchar_t c) { return c >= 0xDC80 && c <= 0xDCFF; }

// Strict: overlong forms, surrogates and code points above U+10FFFF are invalid bytes.
[[nodiscard]] std::wstring fromUtf8(std::string_view bytes);

// A character that has no UTF-8 form (another lone surrogate, above U+10FFFF) is written as U+FFFD.
[[nodiscard]] std::string toUtf8(std::wstring_view text);

[[nodiscard]] bool isValidUtf8(std::string_view bytes);

// Length of the leading part that is valid UTF-8.
[[nodiscard]] std::size_t validUtf8Prefix(std::string_view bytes);

// Whether the text came from bytes that were not valid UTF-8.
[[nodiscard]] bool holdsEscapedBytes(std::wstring_view text);

// Length of the leading part that is plain ASCII.
[[nodiscard]] std::size_t asciiPrefix(std::string_view bytes);

// Appends one character as UTF-8, as toUtf8 writes it.
void appendUtf8(std::string& out, wchar_t c);

// The character that begins at `bytes[at]`; moves `at` behind it. An invalid byte gives its escape.
[[nodiscard]] wchar_t nextUtf8(std::string_view bytes, std::size_t& at);

} // namespace quor
