// The 255 numbered colours.
#pragma once

#include <cstdint>

namespace quor::cm {

// 0xRRGGBB of a numbered colour; the index must be 1 to 255.
[[nodiscard]] std::uint32_t paletteRgb(int index);

// The number (1 to 255) whose colour is nearest to 0xRRGGBB by distance in the RGB cube; of equals the lowest.
[[nodiscard]] int nearestPaletteIndex(std::uint32_t rgb);

} // namespace quor::cm
