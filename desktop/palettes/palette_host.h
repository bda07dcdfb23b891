// The windows of modules on the desktop: palettes are docks of the main window, menus pop up.
#pragma once

#include "desktop/front/parts.h"
#include "desktop/palettes/palette_dock.h"

#include <QObject>
#include <QStringList>

#include <functional>

class QDockWidget;
class QMainWindow;

namespace quor {
class Session;
}

namespace quor::desktop {

class PaletteHost final : public QObject, public WindowPart {
    Q_OBJECT

public:
    // Made before modules are loaded: lengths of their windows are those of the screen from then on.
    PaletteHost(Session& session, QMainWindow& window);
    ~PaletteHost() override;

    // Gives the keyboard to whoever has it for the drawing, when a palette gives it up.
    void setFocusDrawing(std::function<void()> focus) { focusDrawing_ = std::move(focus); }

    // The tool ids of the palettes that are shown, for the next session; and showing them there, once modules are
    // loaded.
    [[nodiscard]] QStringList shownPalettes();
    void showPalettes(const QStringList& toolIds);

    // Whether a person sees one of them, not only its tab.
    [[nodiscard]] bool arePalettesSeen();
    // As the docks' own menu does, in the middle of a command too: hides them when they are seen, else shows them
    // before other tabs.
    void togglePalettes();

    void realise(CWnd& window) override;
    unsigned trackMenu(const CMenu& menu, CPoint screen) override;
    // Before other tabs and other windows.
    void paletteShown(const CZkUiPaletteSet& palette) override;

Q_SIGNALS:
    // What arePalettesSeen() tells.
    void seenChanged();

private:
    template <class Action>
    void forEachPalette(Action&& action);
    void showPalette(CZkUiPaletteSet& palette);
    void place(PaletteDock& dock, const CZkUiPaletteSet& palette);
    [[nodiscard]] QDockWidget* dockOnTheRight() const;
    void showAgain(CZkUiPaletteSet& palette);

    Session& session_;
    QMainWindow& main_;
    std::function<void()> focusDrawing_;
};

} // namespace quor::desktop
