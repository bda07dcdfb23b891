#include "sdk/sys/format.h"

#include "host/sys/placeholder.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

using quor::sys::Placeholder;

// Longest number: 309 digits before and kMaxPrecision behind the decimal mark.
using NumberBuffer = std::array<char, 512>;

// Writes a number or text, filled up to the width. `digits` may carry a sign or "0x", which zeros stand behind.
void appendNumber(ZrString& out, const Placeholder& placeholder, std::string_view prefix, std::string_view digits,
                  bool zeros) {
    const std::size_t length = prefix.size() + digits.size();
    const auto width = static_cast<std::size_t>(placeholder.width);
    const std::size_t fill = width > length ? width - length : 0;
    const bool zeroFill = zeros && placeholder.zero && !placeholder.left;
    if (!placeholder.left && !zeroFill)
        out.append(fill, L' ');
    out.append(prefix.begin(), prefix.end());
    if (zeroFill)
        out.append(fill, L'0');
    out.append(digits.begin(), digits.end());
    if (placeholder.left)
        out.append(fill, L' ');
}

void appendText(ZrString& out, const Placeholder& placeholder, std::wstring_view text) {
    const auto width = static_cast<std::size_t>(placeholder.width);
    const std::size_t fill = width > text.size() ? width - text.size() : 0;
    if (!placeholder.left)
        out.append(fill, L' ');
    out.append(text);
    if (placeholder.left)
        out.append(fill, L' ');
}

std::string_view signOf(const Placeholder& placeholder, bool negative) {
    if (negative)
        return "-";
    return placeholder.plus ? "+" : placeholder.blank ? " " : "";
}

// Hexadecimal shows a negative number as the bits of the smallest type that holds it, 32 bits at least.
unsigned long long bitsOf(long long value) {
    const bool fits = value >= std::numeric_limits<int>::min() && value < 0;
    return fits ? static_cast<unsigned>(value) : static_cast<unsigned long long>(value);
}

void toUpper(char* begin, const char* end) {
    for (; begin != end; ++begin)
        if (*begin >= 'a' && *begin <= 'z')
            *begin = static_cast<char>(*begin - 'a' + 'A');
}

// A precision is the least number of digits; zeros go in front of `digits`, where there is room for them.
std::string_view atLeast(int precision, char* digits, const char* end) {
    while (precision > end - digits)
        *--digits = '0';
    return {digits, end};
}

void appendHex(ZrString& out, const Placeholder& placeholder, long long value) {
    NumberBuffer buffer;
    char* digits = buffer.data() + Placeholder::kMaxPrecision;
    char* end = std::to_chars(digits, buffer.data() + buffer.size(), bitsOf(value), 16).ptr;
    const bool upper = placeholder.conversion == L'X';
    if (upper)
        toUpper(digits, end);
    const std::string_view prefix = placeholder.alternate && value != 0 ? (upper ? "0X" : "0x") : "";
    appendNumber(out, placeholder, prefix, atLeast(placeholder.precision, digits, end), placeholder.precision < 0);
}

void appendWhole(ZrString& out, const Placeholder& placeholder, long long value) {
    NumberBuffer buffer;
    const auto bits = static_cast<unsigned long long>(value);
    char* digits = buffer.data() + Placeholder::kMaxPrecision;
    char* end = std::to_chars(digits, buffer.data() + buffer.size(), value < 0 ? 0 - bits : bits).ptr;
    appendNumber(out, placeholder, signOf(placeholder, value < 0), atLeast(placeholder.precision, digits, end),
                 placeholder.precision < 0);
}

std::chars_format formOf(wchar_t conversion) {
    switch (conversion) {
    case L'f':
    case L'F':
        return std::chars_format::fixed;
    case L'e':
    case L'E':
        return std::chars_format::scientific;
    default:
        return std::chars_format::general;
    }
}

void appendReal(ZrString& out, const Placeholder& placeholder, double value) {
    NumberBuffer buffer;
    const int precision = placeholder.precision < 0 ? 6 : placeholder.precision;
    char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                              formOf(placeholder.conversion), precision)
                    .ptr;
    if (placeholder.conversion == L'E' || placeholder.conversion == L'G' || placeholder.conversion == L'F')
        toUpper(buffer.data(), end);
    appendNumber(out, placeholder, signOf(placeholder, std::signbit(value)), {buffer.data(), end},
                 std::isfinite(value));
}

// Fills one placeholder. Where the argument is of another kind, it is shown as its own kind would be.
struct Filler {
    ZrString& out;
    const Placeholder& placeholder;

    void operator()(long long value) const {
        if (placeholder.conversion == L'x' || placeholder.conversion == L'X')
            appendHex(out, placeholder, value);
        else if (placeholder.conversion == L'c')
            appendText(out, placeholder, ZrString(1, static_cast<wchar_t>(value)));
        else
            appendWhole(out, isWhole() ? placeholder : natural(), value);
    }
    void operator()(double value) const {
        const bool real = std::wstring_view(L"fFeEgG").find(placeholder.conversion) != std::wstring_view::npos;
        appendReal(out, real ? placeholder : natural(), value);
    }
    void operator()(std::wstring_view text) const {
        const bool cut =
            (placeholder.conversion == L's' || placeholder.conversion == L'S') && placeholder.precision >= 0;
        appendText(out, placeholder, cut ? text.substr(0, static_cast<std::size_t>(placeholder.precision)) : text);
    }

private:
    [[nodiscard]] bool isWhole() const {
        return std::wstring_view(L"diu").find(placeholder.conversion) != std::wstring_view::npos;
    }
    // Keeps the width; the precision belongs to another kind of argument.
    [[nodiscard]] Placeholder natural() const {
        Placeholder plain = placeholder;
        plain.precision = -1;
        plain.conversion = L'g';
        return plain;
    }
};

} // namespace

ZrString zrFormat(std::wstring_view format, std::initializer_list<ZrFormatArg> arguments) {
    ZrString out;
    out.reserve(format.size() + 16 * arguments.size());
    const ZrFormatArg* argument = arguments.begin();
    while (true) {
        const std::size_t percent = format.find(L'%');
        out.append(format.substr(0, percent));
        if (percent == std::wstring_view::npos)
            return out;
        format.remove_prefix(percent);
        const auto placeholder = quor::sys::parsePlaceholder(format);
        const bool isPercentSign = format.substr(0, 2) == L"%%";
        const std::size_t length = placeholder ? placeholder->length : isPercentSign ? 2 : 1;
        if (placeholder && argument != arguments.end())
            std::visit(Filler{out, *placeholder}, (argument++)->value());
        else
            out.append(format.substr(0, isPercentSign ? 1 : length));
        format.remove_prefix(length);
    }
}
