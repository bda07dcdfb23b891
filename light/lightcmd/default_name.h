// Default names of lights: a word for the kind and a number that no other light of the space has.
#pragma once

#include "sdk/sys/string.h"

#include <cstdint>
#include <functional>

namespace quor::light {

// The word followed by the number in decimal.
[[nodiscard]] ZrString defaultLightName(const ZrString& prefix, std::int16_t number);

// The first number behind `last` whose name is not taken. Numbers have 16 bits: 32767 is followed by -32768. When all
// of them are taken, the search ends where it began, with a name that is taken.
[[nodiscard]] std::int16_t nextFreeNumber(std::int16_t last, const ZrString& prefix,
                                          const std::function<bool(const ZrString&)>& isTaken);

} // namespace quor::light
