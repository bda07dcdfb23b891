// A pattern of pixels that lets slow changes of brightness look even: between two steps of a screen, some pixels take
// the one and some the other.
#pragma once

#include <array>
#include <cstdint>

namespace quor::desktop {

inline constexpr std::uint32_t kDitherSteps = 16;

// What to add, in sixteenths of a step, before the rest is cut off: 0 to 15, in squares of 4 x 4 pixels.
[[nodiscard]] inline std::uint32_t ditherAt(int x, int y) {
    constexpr std::array<std::uint8_t, 16> pattern{0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5};
    return pattern[(static_cast<unsigned>(y) % 4) * 4 + static_cast<unsigned>(x) % 4];
}

} // namespace quor::desktop
