// What has to hold of palettes whatever was done to them, and what the light list has to show.
#pragma once

class CListCtrl;
class CWnd;
class CZkUiPaletteSet;

namespace quor {
class Session;
}

namespace quor::fuzz {

// The palette that has a window, shown or not; null when there is none.
[[nodiscard]] CZkUiPaletteSet* openPalette(Session& session);
// The first list in the window, or null.
[[nodiscard]] CListCtrl* listIn(const CWnd& window);

// The rows of the list in the window hold together: their ids, selection, places.
void checkRows(const CWnd& window);
// After a selection at the command prompt, unless the palette is disabled: where the list has the lights of the current
// drawing, each under a name of its own, those rows are selected whose lights are selected in the drawing.
void checkSelectionIsShared(Session& session);
// LIGHTLISTSTATE says whether the palette can be seen; there is none while the module is not loaded.
void checkListState(Session& session);
// In every open drawing LIGHTLIST gives the lights of model space in ascending order of their names, while a block is
// edited in place those of the working set. Does nothing unless there is an open palette.
void checkLightList(Session& session);

} // namespace quor::fuzz
