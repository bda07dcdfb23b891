// Numbers and marks at the front of a text.
#include "host/db/units_scan.h"

#include <cmath>
#include <string>

#include <fast_float/fast_float.h>

namespace quor::units {

namespace {

// Only the digits 0 to 9: other alphabets' digits are no numbers here.
std::size_t countDigits(std::wstring_view text, std::size_t from) {
    std::size_t end = from;
    while (end < text.size() && text[end] >= L'0' && text[end] <= L'9')
        ++end;
    return end - from;
}

bool isAt(std::wstring_view text, std::size_t at, std::wstring_view marks) {
    return at < text.size() && marks.find(text[at]) != std::wstring_view::npos;
}

// The length of an exponent that begins at `from`, 0 when none does: a lone "e" belongs to what follows.
std::size_t exponentLength(std::wstring_view text, std::size_t from) {
    if (!isAt(text, from, L"eE"))
        return 0;
    const std::size_t sign = isAt(text, from + 1, L"+-") ? 1 : 0;
    const std::size_t digits = countDigits(text, from + 1 + sign);
    return digits == 0 ? 0 : 1 + sign + digits;
}

} // namespace

bool Scanner::take(wchar_t mark) {
    if (rest_.empty() || rest_.front() != mark)
        return false;
    rest_.remove_prefix(1);
    return true;
}

bool Scanner::takeLetter(char letter) {
    const wchar_t capital = static_cast<wchar_t>(letter);
    return take(capital) || take(static_cast<wchar_t>(capital - L'A' + L'a'));
}

bool Scanner::takeMinus() {
    const bool minus = take(L'-');
    if (!minus)
        take(L'+');
    return minus;
}

std::optional<double> Scanner::takeWhole() {
    const std::size_t digits = countDigits(rest_, 0);
    return digits == 0 ? std::nullopt : takeNumber(digits);
}

std::optional<double> Scanner::takeDecimal() {
    const std::size_t whole = countDigits(rest_, 0);
    std::size_t length = whole;
    if (isAt(rest_, length, L".")) {
        const std::size_t fraction = countDigits(rest_, length + 1);
        if (whole + fraction == 0)
            return std::nullopt;
        length += 1 + fraction;
    }
    return length == 0 ? std::nullopt : takeNumber(length + exponentLength(rest_, length));
}

std::optional<double> Scanner::takeNumber(std::size_t length) {
    std::string digits;
    digits.reserve(length);
    for (const wchar_t c : rest_.substr(0, length))
        digits.push_back(static_cast<char>(c));
    // Too large gives infinity, too small gives 0, whatever error code comes with them.
    double value = 0;
    fast_float::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (!std::isfinite(value))
        return std::nullopt;
    rest_.remove_prefix(length);
    return value;
}

} // namespace quor::units
