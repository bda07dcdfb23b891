// Comparison of names and keywords without regard to case, the same in every locale and everywhere in the host.
#pragma once

#include <string_view>

namespace quor {

// Simple case folding, one character to one character.
[[nodiscard]] bool equalFolded(std::wstring_view a, std::wstring_view b);

} // namespace quor
