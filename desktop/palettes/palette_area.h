// What is inside the dock of a palette: it shows the palette's own window, and the widgets of all that is in it.
#pragma once

#include "desktop/palettes/window_widget.h"
#include "sdk/ui/palette_set.h"

namespace quor::desktop {

class PaletteDock;

class PaletteArea final : public WindowWidget {
    Q_OBJECT

public:
    PaletteArea(CZkUiPaletteSet& palette, PaletteDock& dock);

    // The area that a widget stands in; null elsewhere.
    [[nodiscard]] static PaletteArea* around(QWidget& widget);
    [[nodiscard]] PaletteDock& dock() const { return dock_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    // A window of the palette had the keyboard, and the drawing gets it.
    void keyboardGivenUp();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] CZkUiPaletteSet* shownPalette() const { return dynamic_cast<CZkUiPaletteSet*>(shownWindow()); }

    PaletteDock& dock_;
};

} // namespace quor::desktop
