// Tooltips: a text for each of some windows, shown while the mouse rests there.
#pragma once

#include "sdk/ui/window.h"
#include "sdk/ui/window_ref.h"

class CToolTipCtrl : public CWnd {
public:
    // A window that has a tip; adding it again changes the text. False for a window that does not exist.
    bool AddTool(CWnd& window, const ZrString& text);
    void UpdateTipText(const ZrString& text, CWnd& window);
    // Empty for a window without a tip.
    [[nodiscard]] const ZrString& GetText(CWnd& window) const;
    // Looks at a message of one of its windows: a move of the mouse brings its tip up (none for an empty text), a
    // pressed button takes it away. Messages of other windows change nothing.
    void RelayEvent(const InputMessage& message);
    // Takes the tip away.
    void Pop();
    // The window whose tip is shown, or null; null too when that window is gone.
    [[nodiscard]] CWnd* shown() const { return shown_.get(); }

private:
    struct Tool {
        quor::ui::WindowRef window;
        ZrString text;
    };
    [[nodiscard]] Tool* find(const CWnd& window);
    void show(CWnd* window);

    std::vector<Tool> tools_;
    quor::ui::WindowRef shown_;
};

// The tooltips of dialogs, in the host's look.
class CZrUiCmdToolTipCtrl : public CToolTipCtrl {};
