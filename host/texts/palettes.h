// How palettes are shown where there are no windows.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Over the pictures of a list that has no heading there.
inline constexpr Text kPaletteKind{L"类型", L"Kind"};
// Below a list.
inline constexpr Text kPaletteRows{L"\n共 %d 项。\n", L"\n%d items.\n"};
inline constexpr Text kPaletteOneRow{L"\n共 %d 项。\n", L"\n%d item.\n"};
inline constexpr Text kPaletteNoRows{L"  (无)\n", L"  (none)\n"};
// At the end, while a block is edited.
inline constexpr Text kPaletteWhileEditing{
    L"\n正在编辑块“%s”: 列表只显示工作集中的对象；用 REFCLOSE 结束编辑。\n",
    L"\nBlock \"%s\" is being edited in place: the list shows its working set. REFCLOSE ends the editing.\n"};

} // namespace quor::texts
