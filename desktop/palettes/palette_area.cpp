#include "desktop/palettes/palette_area.h"

#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/palette_dock.h"

namespace quor::desktop {

PaletteArea::PaletteArea(CZkUiPaletteSet& palette, PaletteDock& dock) : WindowWidget(palette, &dock), dock_(dock) {}

PaletteArea* PaletteArea::around(QWidget& widget) {
    QWidget* above = &widget;
    while (above != nullptr && qobject_cast<PaletteArea*>(above) == nullptr)
        above = above->parentWidget();
    return static_cast<PaletteArea*>(above);
}

QSize PaletteArea::sizeHint() const {
    const CZkUiPaletteSet* const shown = shownPalette();
    return shown == nullptr ? QSize() : toQt(shown->GetFloatingRect()).size().expandedTo(minimumSizeHint());
}

QSize PaletteArea::minimumSizeHint() const {
    CSize least;
    if (const auto* const shown = dynamic_cast<CZrRxPaletteSet*>(shownPalette()))
        shown->GetMinSize(least);
    return {least.cx, least.cy};
}

void PaletteArea::resizeEvent(QResizeEvent* /*event*/) { dock_.tellPlace(); }

void PaletteArea::showEvent(QShowEvent* /*event*/) { dock_.tellPlace(); }

} // namespace quor::desktop
