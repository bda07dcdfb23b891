#include "host/ui/input.h"

#include "host/ui/acting.h"
#include "host/ui/focus.h"
#include "sdk/ui/window.h"

#include <initializer_list>

namespace quor::ui {

namespace {

using Kind = InputMessage::Kind;

CPoint cursor;

bool acceptsInput(const CWnd& window) {
    const CWnd* next = &window;
    while (next != nullptr && next->IsWindowEnabled())
        next = next->GetParent();
    return next == nullptr;
}

// Any of those that look at it may destroy windows.
bool isDealtWith(const InputMessage& message) {
    WindowRef looking(message.window);
    while (looking) {
        if (looking->dispatchPreTranslate(message))
            return true;
        if (looking)
            looking = WindowRef(looking->GetParent());
    }
    return false;
}

// Several messages for one window, which may go on the way.
void sendMouse(CWnd& window, CPoint point, unsigned flags, std::initializer_list<Kind> kinds) {
    const WindowRef target(&window);
    for (const Kind kind : kinds)
        sendInput({.kind = kind, .window = target.get(), .point = point, .flags = flags});
}

} // namespace

void sendInput(const InputMessage& message) {
    const WindowRef target(message.window);
    if (!target)
        return;
    if (message.kind != Kind::KeyDown)
        cursor = target->ClientToScreen(message.point);
    if (!acceptsInput(*target))
        return;
    const ActingScope acting(*target);
    if (!isDealtWith(message) && target)
        target->dispatchInput(message);
}

void moveMouse(CWnd& window, CPoint point, unsigned flags) { sendMouse(window, point, flags, {Kind::MouseMove}); }

void click(CWnd& window, CPoint point, unsigned flags) {
    sendMouse(window, point, flags, {Kind::LeftDown, Kind::LeftUp});
}

void doubleClick(CWnd& window, CPoint point, unsigned flags) {
    sendMouse(window, point, flags, {Kind::LeftDown, Kind::LeftUp, Kind::LeftDouble, Kind::LeftUp});
}

void rightClick(CWnd& window, CPoint point, unsigned flags) {
    sendMouse(window, point, flags, {Kind::RightDown, Kind::RightUp});
}

void turnWheel(CWnd& window, CPoint point, int lines, unsigned flags) {
    sendInput({.kind = Kind::Wheel, .window = &window, .point = point, .flags = flags, .lines = lines});
}

void pressKey(unsigned key, unsigned flags) {
    if (CWnd* const window = focusedWindow())
        pressKey(*window, key, flags);
}

void pressKey(CWnd& window, unsigned key, unsigned flags) {
    sendInput({.kind = Kind::KeyDown, .window = &window, .flags = flags, .key = key});
}

CWnd* windowAt(CWnd& root, CPoint point) {
    return root.IsWindowVisible() && root.GetClientRect().PtInRect(point) ? root.childAt(point) : nullptr;
}

} // namespace quor::ui

CPoint GetCursorPos() { return quor::ui::cursor; }
