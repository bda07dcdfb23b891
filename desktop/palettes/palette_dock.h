// A palette of a module as a dock of the main window. The palette is what counts: who closes the dock asks it, and it
// is told where its dock is. A dock behind another tab is shown, as far as the palette goes; LIGHTLIST and the like
// bring it to the front.
#pragma once

#include "desktop/palettes/window_view.h"
#include "sdk/ui/palette_set.h"
#include "sdk/ui/window_ref.h"

#include <QDockWidget>

class QMainWindow;

namespace quor::desktop {

class PaletteArea;

class PaletteDock final : public QDockWidget, public WindowView {
    Q_OBJECT

public:
    PaletteDock(CZkUiPaletteSet& palette, QWidget* parent);
    ~PaletteDock() override;

    // Null once it is gone.
    [[nodiscard]] CZkUiPaletteSet* shownPalette() const { return dynamic_cast<CZkUiPaletteSet*>(window_.get()); }
    [[nodiscard]] PaletteArea& area() const { return *area_; }
    // Tells the palette where its inside is on the screen, docked or floating.
    void tellPlace();
    // Takes the place that the window's layout has for it, if there is one.
    [[nodiscard]] bool restorePlace(QMainWindow& window);
    // Moves a floating dock so that its inside is there, on the screen.
    void placeInside(const CRect& place);
    void windowChanged(CWnd& window, ui::WindowPeer::Change change) override;

Q_SIGNALS:
    // The person, or Qt for them, has shown or hidden the dock while the palette was not. Told when both have settled.
    void shownByPerson();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void followVisibility(bool shown);
    void followPlace(const CZkUiPaletteSet& palette);
    void settleVisibility();
    void tellOfKeyboard(QWidget* now);
    void tellOfDocking(bool floats);
    void floatAsBefore(QSize inside);
    void moveIntoSight();

    ui::WindowRef window_;
    PaletteArea* area_;
    bool isFollowing_ = false;
    bool isKnownToFloat_ = false; // by the palette; a dock that is on its way has neither place yet
    bool hasKeyboard_ = false;
};

} // namespace quor::desktop
