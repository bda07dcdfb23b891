// The numbers of a web file, one after the other: separated by blanks, tabs, commas and line breaks in any mixture.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quor::ies {

struct Token {
    std::string_view text;
    std::size_t line = 0; // from 1
};

class Tokens {
public:
    // `line` is the number of the line in which the text begins.
    Tokens(std::string_view text, std::size_t line) : rest_(text), line_(line) {}

    // False at the end of the text; Ctrl-Z ends it as it did in the files of old.
    bool next(Token& token);

private:
    void skipSeparators();

    std::string_view rest_;
    std::size_t line_;
};

// Decimal digits with an optional sign, point and exponent; nothing for any other text and beyond what a double holds.
[[nodiscard]] std::optional<double> numberOf(std::string_view text);

} // namespace quor::ies
