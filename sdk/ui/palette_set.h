// Palettes: dockable windows with a title, and those that follow the drawing.
#pragma once

#include "sdk/ui/control_bar.h"

class ZrApDocument;
class ZrDbDatabase;
class ZrDbObject;

namespace quor::ui {
// Commands and messages that the host sends to a palette.
inline constexpr unsigned kCloseCommand = 10001;        // its close button
inline constexpr unsigned kTipsMessage = WM_APP + 0x1A; // wParam 0: show or hide the tips; 1: lParam points to a byte
                                                        // that becomes 1 when they are shown, else 0
inline constexpr unsigned kIconMessage = WM_APP + 0x1B; // the palette should set its icon
} // namespace quor::ui

class CZkUiPaletteSet : public CZkUiDockControlBar {
public:
    // What names the palette across sessions, e.g. in the stored layout.
    void SetToolID(const ZrString& guid) { toolId_ = guid; }
    [[nodiscard]] const ZrString& GetToolID() const { return toolId_; }
    // Its title; kept as the window's text when it has a window.
    void SetName(const ZrString& name);
    [[nodiscard]] const ZrString& GetName() const { return name_; }

    // Whether the person can use it.
    virtual void Enable() { EnableWindow(true); }
    virtual void Disable() { EnableWindow(false); }

    // Told by the program that shows it; the host's own behaviour brings the palette up to date.
    virtual void onActivated() { Invalidate(); }
    virtual void onDeactivated() { Invalidate(); }
    virtual void onDocked() { Invalidate(); }
    virtual void onFloated() { Invalidate(); }
    virtual void onRolledUp() { Invalidate(); }
    virtual void onUnrolled() { Invalidate(); }

protected:
    bool createWindow(CWnd& frame) override;

private:
    ZrString toolId_;
    ZrString name_;
};

// A palette that is told what happens in the drawings. Every slot is called on the thread of the user interface. The
// object of a notification is open for reading as long as the call lasts, erased or not.
class CZrRxPaletteSet : public CZkUiPaletteSet {
public:
    // A system variable was set.
    virtual void sysVarChanged(const ZrString& /*name*/) {}
    // The pick-first selection of the current drawing changed, not by what the person did in this palette.
    virtual void impliedSelectionChanged() {}
    virtual void objectOpenedForModify(const ZrDbDatabase* /*database*/, const ZrDbObject* /*object*/) {}
    virtual void lightAppended(const ZrDbDatabase* /*database*/, const ZrDbObject* /*object*/) {}
    // It was erased, or came back; undo and redo of an append included. Told at once.
    virtual void lightChangedNow(const ZrDbDatabase* /*database*/, const ZrDbObject* /*object*/) {}
    // Three forms: it was modified; its append was undone; its append was redone. The last two come after
    // lightChangedNow().
    virtual void lightTouched(const ZrDbDatabase* /*database*/, const ZrDbObject* /*object*/) {}
    virtual void lightTouchedByUndo(const ZrDbDatabase* /*database*/, const ZrDbObject* /*object*/) {}
    virtual void lightTouchedByRedo(const ZrDbDatabase* /*database*/, const ZrDbObject* /*object*/) {}
    // Null when the last one was closed. Told again when editing a block in place has begun or ended there: other
    // objects count then.
    virtual void documentBecameCurrent(ZrApDocument* /*document*/) {}
    // Around every outermost command, also one that is cancelled.
    virtual void commandStarting() {}
    virtual void documentToBeDestroyed(ZrApDocument* /*document*/) {}
    virtual void documentToBeDeactivated(ZrApDocument* /*document*/) {}
    virtual void commandFinished() {}
    // Its visibility really changed.
    virtual void paletteShownChanged(bool /*shown*/) {}
    // Whether the person can see it.
    [[nodiscard]] virtual bool IsWindowVisibleEx() const { return IsVisible() && IsWindowVisible(); }
    // Below which it cannot be made; what SetMinSize() was given.
    virtual void GetMinSize(CSize& size) const { size = CZkUiPaletteSet::smallestSize(); }

protected:
    [[nodiscard]] CSize smallestSize() const final {
        CSize size;
        GetMinSize(size);
        return size;
    }
    void visibilityChanged(bool shown) override { paletteShownChanged(shown); }
};
