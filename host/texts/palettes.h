// How palettes are shown where there are no windows.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Over the pictures of a list that has no heading there.
inline constexpr Text kPaletteKind{L"类型", L"Type"};
// Below a list.
inline constexpr Text kPaletteRows{L"\n共 %d 项。\n", L"\n%d items.\n"};
inline constexpr Text kPaletteOneRow{L"\n共 %d 项。\n", L"\n%d item.\n"};
inline constexpr Text kPaletteNoRows{L"列表为空。\n", L"The list is empty.\n"};

} // namespace quor::texts
