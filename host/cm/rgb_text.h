// Whole numbers and "r,g,b" as people and colour books write them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quor::cm {

// Decimal digits only, and at most `largest`.
[[nodiscard]] std::optional<int> parseWhole(std::wstring_view text, int largest);

// Three whole numbers 0 to 255 with commas between and nothing else, as 0xRRGGBB.
[[nodiscard]] std::optional<std::uint32_t> parseRgb(std::wstring_view text);
// The same, with blanks around the numbers or without.
[[nodiscard]] std::optional<std::uint32_t> parseSpacedRgb(std::wstring_view text);

} // namespace quor::cm
