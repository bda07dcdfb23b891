// What a typed light name may look like.
#pragma once

#include <string_view>

namespace quor::light {

inline constexpr std::wstring_view invalidNameCharacters = L"<>/\\\"':;?*|,=`";
inline constexpr std::size_t maxNameLength = 255;

[[nodiscard]] constexpr bool hasInvalidCharacter(std::wstring_view name) {
    return name.find_first_of(invalidNameCharacters) != std::wstring_view::npos;
}

} // namespace quor::light
