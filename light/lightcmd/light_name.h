// Names of lights: what a typed one may look like, and the default ones, a word for the kind and a number that no other
// light of the space has.
#pragma once

#include "sdk/sys/string.h"

#include <cstdint>
#include <string_view>

namespace quor::light {

inline constexpr std::wstring_view invalidNameCharacters = L"<>/\\\"':;?*|,=`";
inline constexpr std::size_t maxNameLength = 255;

[[nodiscard]] constexpr bool hasInvalidCharacter(std::wstring_view name) {
    return name.find_first_of(invalidNameCharacters) != std::wstring_view::npos;
}

// The word followed by the number in decimal.
[[nodiscard]] ZrString defaultLightName(const ZrString& prefix, std::int16_t number);

// The number behind this one. Numbers have 16 bits: -32768 follows 32767.
[[nodiscard]] constexpr std::int16_t followingNumber(std::int16_t number) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(number) + 1U);
}

} // namespace quor::light
