#include "desktop/palettes/palette_host.h"

#include "desktop/palettes/list_accessible.h"
#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/palette_area.h"
#include "desktop/palettes/popup_menu.h"
#include "desktop/qt_text.h"
#include "host/document.h"
#include "host/session.h"
#include "host/ui/dpi.h"
#include "host/ui/user_interface.h"
#include "sdk/ui/palette_set_manager.h"

#include <QMainWindow>
#include <QScreen>

namespace quor::desktop {

// A pixel of a window is a logical pixel of Qt: what makes the screen finer than 96 dots per inch is Qt's scale factor
// as a rule, and then the lengths stay as they are.
PaletteHost::PaletteHost(Session& session, QMainWindow& window) : session_(session), main_(window) {
    ui::setScreenDpi(qRound(window.screen()->logicalDotsPerInchX()));
    installListAccessibility();
}

PaletteHost::~PaletteHost() = default;

void PaletteHost::realise(CWnd& window) {
    if (auto* const palette = dynamic_cast<CZkUiPaletteSet*>(&window))
        showPalette(*palette);
}

void PaletteHost::showPalette(CZkUiPaletteSet& palette) {
    using Change = ui::WindowPeer::Change;
    auto* const dock = new PaletteDock(palette, &main_); // the main window's, and the peer's
    dock->hide();
    palette.attachPeer(std::make_unique<WidgetPeer>(*dock));
    for (const Change change : {Change::Text, Change::Icon, Change::Enabled, Change::Content})
        dock->windowChanged(palette, change);
    connect(&dock->area(), &PaletteArea::keyboardGivenUp, this, [this] {
        if (focusDrawing_)
            focusDrawing_();
    });
    connect(dock, &PaletteDock::shownByPerson, this, [this, dock] {
        if (CZkUiPaletteSet* const shown = dock->shownPalette())
            showAgain(*shown);
    });
    connect(dock, &QDockWidget::visibilityChanged, this, &PaletteHost::seenChanged);
    place(*dock, palette);
    dock->windowChanged(palette, Change::Visibility);
}

// Where it was when the layout was saved; else it floats where it wants to. Docked by a double click it is a tab of the
// docks on the right, which beside it would have no room.
void PaletteHost::place(PaletteDock& dock, const CZkUiPaletteSet& palette) {
    if (dock.restorePlace(main_))
        return;
    QDockWidget* const neighbour = dockOnTheRight();
    main_.addDockWidget(Qt::RightDockWidgetArea, &dock);
    if (neighbour != nullptr)
        main_.tabifyDockWidget(neighbour, &dock);
    dock.setFloating(true);
    dock.placeInside(palette.GetFloatingRect());
}

QDockWidget* PaletteHost::dockOnTheRight() const {
    for (QDockWidget* const dock : main_.findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly))
        if (!dock->isFloating() && main_.dockWidgetArea(dock) == Qt::RightDockWidgetArea)
            return dock;
    return nullptr;
}

template <class Action>
void PaletteHost::forEachPalette(Action&& action) {
    if (CZrRxPaletteSetManager* const palettes = session_.ui().palettes(false))
        palettes->forEach(action);
}

// While a palette was hidden, or not made yet, its drawing may have changed, or gone. It may go itself while it is
// shown.
void PaletteHost::showAgain(CZkUiPaletteSet& palette) {
    const CZkUiPaletteSet* const shown = &palette;
    session_.ui().frame().ShowControlBar(&palette, true, false);
    forEachPalette([&](CZrRxPaletteSet& present) {
        if (&present == shown)
            present.documentBecameCurrent(session_.documents().current());
    });
}

QStringList PaletteHost::shownPalettes() {
    QStringList shown;
    forEachPalette([&](const CZrRxPaletteSet& palette) {
        if (palette.IsVisible())
            shown += toQt(palette.GetToolID());
    });
    return shown;
}

void PaletteHost::showPalettes(const QStringList& toolIds) {
    forEachPalette([&](CZrRxPaletteSet& palette) {
        if (toolIds.contains(toQt(palette.GetToolID())) && !palette.IsVisible())
            showAgain(palette);
    });
}

bool PaletteHost::arePalettesSeen() {
    bool isSeen = false;
    forEachPalette([&](const CZrRxPaletteSet& palette) {
        const QWidget* const dock = widgetOf(palette);
        isSeen = isSeen || (palette.IsVisible() && dock != nullptr && !dock->visibleRegion().isEmpty());
    });
    return isSeen;
}

void PaletteHost::togglePalettes() {
    const bool hides = arePalettesSeen();
    forEachPalette([&](CZrRxPaletteSet& palette) {
        if (hides) {
            palette.SendMessage(WM_COMMAND, ui::kCloseCommand);
            return;
        }
        if (!palette.IsVisible())
            showAgain(palette);
        paletteShown(palette);
    });
}

unsigned PaletteHost::trackMenu(const CMenu& menu, CPoint screen) { return popUp(menu, screen, main_); }

void PaletteHost::paletteShown(const CZkUiPaletteSet& palette) {
    if (QWidget* const dock = widgetOf(palette))
        dock->raise();
}

} // namespace quor::desktop
