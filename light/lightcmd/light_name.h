// Names of lights: what a typed one may look like, and the default ones, a word for the kind and a number that no other
// light of the space has.
#pragma once

#include "sdk/sys/string.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace quor::light {

inline constexpr std::wstring_view invalidNameCharacters = L"<>/\\\"':;?*|,=`";
inline constexpr std::size_t maxNameLength = 255;

[[nodiscard]] constexpr bool hasInvalidCharacter(std::wstring_view name) {
    return name.find_first_of(invalidNameCharacters) != std::wstring_view::npos;
}

// The word followed by the number in decimal.
[[nodiscard]] ZrString defaultLightName(const ZrString& prefix, std::int16_t number);

// The first number behind `last` whose name is not taken. Numbers have 16 bits: 32767 is followed by -32768. When all
// of them are taken, the search ends where it began, with a name that is taken.
[[nodiscard]] std::int16_t nextFreeNumber(std::int16_t last, const ZrString& prefix,
                                          const std::function<bool(const ZrString&)>& isTaken);

} // namespace quor::light
