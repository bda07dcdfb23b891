// The %-placeholders of texts: the one place that knows what they look like.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quor::sys {

// %[flags][width][.precision][length]conversion
struct Placeholder {
    static constexpr int kMaxWidth = 255; // larger widths and precisions of a text count as these
    static constexpr int kMaxPrecision = 99;

    bool left = false;      // "-"
    bool plus = false;      // "+"
    bool blank = false;     // " "
    bool zero = false;      // "0"
    bool alternate = false; // "#"
    int width = 0;
    int precision = -1; // -1: none given
    wchar_t conversion = 0;
    std::size_t length = 0; // characters it takes in the text, "%" included
};

// The placeholder at the beginning of the text; nothing when the text begins with none ("%%" is none). Lengths (h, l,
// ll) are skipped.
[[nodiscard]] std::optional<Placeholder> parsePlaceholder(std::wstring_view text);

// What the placeholders of a text take, in order, a letter each: w whole number, r real number, s text, c character.
// Texts with equal kinds can be filled with the same arguments.
[[nodiscard]] std::wstring placeholderKinds(std::wstring_view text);
// The placeholders as they stand in the text, with blanks between; empty when there are none.
[[nodiscard]] std::wstring placeholders(std::wstring_view text);

} // namespace quor::sys
