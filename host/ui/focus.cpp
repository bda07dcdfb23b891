#include "host/ui/focus.h"

#include "sdk/ui/window.h"
#include "sdk/ui/window_ref.h"

namespace quor::ui {

namespace {

// There is one thread of the user interface.
WindowRef focused;

void tellPeer(CWnd& window) {
    if (window.peer() != nullptr)
        window.peer()->changed(window, WindowPeer::Change::Focus);
}

} // namespace

CWnd* focusedWindow() { return focused.get(); }

CWnd* moveFocus(CWnd* to) {
    const WindowRef before = focused;
    if (before.get() == to)
        return to;
    focused = WindowRef(to);
    if (before) {
        tellPeer(*before);
        before->dispatchKillFocus(to);
    }
    // What the other one does about it may have changed the focus again.
    if (to != nullptr && focused.get() == to) {
        tellPeer(*to);
        to->dispatchSetFocus(before.get());
    }
    return before.get();
}

void focusDrawing() { moveFocus(nullptr); }

bool hasFocusInside(const CWnd& window) {
    const CWnd* inside = focused.get();
    while (inside != nullptr && inside != &window)
        inside = inside->GetParent();
    return inside != nullptr;
}

} // namespace quor::ui
