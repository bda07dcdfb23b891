// Palettes where there are no windows: as lines of text.
#pragma once

#include "sdk/sys/string.h"

class CZkUiPaletteSet;

namespace quor::ui {

// Its title, and the lists in it that are shown, each as a table with the number of its rows; then whether a block is
// edited, for lists show its working set only. A picture is told by its name. `columns`: that a line may take; long
// texts are cut.
[[nodiscard]] ZrString paletteText(const CZkUiPaletteSet& palette, int columns);

} // namespace quor::ui
