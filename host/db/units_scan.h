// Walks over a text and takes numbers and marks off its front. The one place that decides what digits are.
#pragma once

#include <optional>
#include <string_view>

namespace quor::units {

// Each take… either takes all it names or leaves the position where it was.
class Scanner {
public:
    explicit Scanner(std::wstring_view text) : rest_(text) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    bool take(wchar_t mark);
    // The same for a letter of either case; `letter` is the capital.
    bool takeLetter(char letter);
    // An optional sign; true when it was "-".
    bool takeMinus();
    // Digits only, as a number.
    std::optional<double> takeWhole();
    // Digits with an optional decimal point and exponent, without sign. Nothing when it is too large for a double.
    std::optional<double> takeDecimal();

private:
    std::optional<double> takeNumber(std::size_t length);

    std::wstring_view rest_;
};

} // namespace quor::units
