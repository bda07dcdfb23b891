#include "host/dxf/text_escapes.h"

#include <iterator>
#include <optional>

namespace quor::dxf {
namespace {

std::optional<std::uint32_t> hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9')
        return static_cast<std::uint32_t>(c - L'0');
    if (c >= L'a' && c <= L'f')
        return static_cast<std::uint32_t>(c - L'a' + 10);
    if (c >= L'A' && c <= L'F')
        return static_cast<std::uint32_t>(c - L'A' + 10);
    return std::nullopt;
}

// Four hex digits from `at`.
std::optional<std::uint32_t> hexFour(std::wstring_view text, std::size_t at) {
    if (text.size() < at + 4)
        return std::nullopt;
    std::uint32_t value = 0;
    for (const wchar_t c : text.substr(at, 4)) {
        const auto digit = hexDigit(c);
        if (!digit)
            return std::nullopt;
        value = value << 4 | *digit;
    }
    return value;
}

bool startsEscape(std::wstring_view text, wchar_t small, wchar_t capital) {
    return text.size() >= 3 && text[0] == L'\\' && (text[1] == small || text[1] == capital) && text[2] == L'+';
}

constexpr std::size_t unicodeLength = 7;
constexpr std::size_t multibyteLength = 8;

std::optional<std::uint32_t> codeUnit(std::wstring_view text) {
    return startsEscape(text, L'u', L'U') ? hexFour(text, 3) : std::nullopt;
}

bool isHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void appendUnit(std::string& out, std::uint32_t unit) {
    constexpr char digits[] = "0123456789ABCDEF";
    out += "\\U+";
    for (int shift = 12; shift >= 0; shift -= 4)
        out.push_back(digits[unit >> shift & 0xF]);
}

// The code pages of \M+1 to \M+5.
constexpr std::string_view multibytePages[] = {"ANSI_932", "ANSI_950", "ANSI_949", "ANSI_1361", "ANSI_936"};

} // namespace

UnicodeEscape parseUnicodeEscape(std::wstring_view text) {
    const auto unit = codeUnit(text);
    if (!unit || isLowSurrogate(*unit))
        return {};
    if (!isHighSurrogate(*unit))
        return {static_cast<wchar_t>(*unit), unicodeLength};
    const auto low = codeUnit(text.substr(unicodeLength));
    if (!low || !isLowSurrogate(*low))
        return {};
    return {static_cast<wchar_t>(0x10000 + ((*unit - 0xD800) << 10) + (*low - 0xDC00)), 2 * unicodeLength};
}

void appendUnicodeEscape(std::string& out, wchar_t c) {
    const auto code = static_cast<std::uint32_t>(c);
    if (code > 0x10FFFF)
        return appendUnit(out, 0xFFFD);
    if (code < 0x10000)
        return appendUnit(out, code);
    appendUnit(out, 0xD800 + ((code - 0x10000) >> 10));
    appendUnit(out, 0xDC00 + ((code - 0x10000) & 0x3FF));
}

MultibyteEscape parseMultibyteEscape(std::wstring_view text) {
    if (!startsEscape(text, L'm', L'M') || text.size() < multibyteLength)
        return {};
    const wchar_t page = text[3];
    const auto bytes = hexFour(text, 4);
    if (page < L'1' || page >= L'1' + static_cast<wchar_t>(std::size(multibytePages)) || !bytes)
        return {};
    return {multibytePages[page - L'1'],
            {static_cast<char>(*bytes >> 8), static_cast<char>(*bytes & 0xFF)},
            multibyteLength};
}

} // namespace quor::dxf
