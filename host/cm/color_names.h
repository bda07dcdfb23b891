// Names of the numbered colours 1 to 7, English and in the language in use.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quor::cm {

constexpr int namedColorCount = 7;

// Both are for index 1 to 7, else empty.
[[nodiscard]] std::wstring_view englishColorName(int index);
[[nodiscard]] std::wstring localColorName(int index);

// The name of an index 1 to 7 as a language pack has it; without a source, or where it gives an empty text, the name
// in the host's language counts.
using ColorNameSource = std::function<std::wstring(int index)>;
void setColorNameSource(ColorNameSource source);

// The index 1 to 7 of an English or local name, without regard to case; 0 when it is none.
[[nodiscard]] int indexOfColorName(std::wstring_view name);

} // namespace quor::cm
