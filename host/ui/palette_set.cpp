#include "sdk/ui/palette_set.h"

void CZkUiPaletteSet::SetName(const ZrString& name) {
    name_ = name;
    if (IsWindow())
        SetWindowText(name);
}

// A window at the top: a palette is seen and handled by itself, wherever the frame is.
bool CZkUiPaletteSet::createWindow(CWnd& /*frame*/) { return Create({.rect = GetFloatingRect(), .text = name_}); }
