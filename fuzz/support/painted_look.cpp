#include "fuzz/support/painted_look.h"

#include "fuzz/support/failure.h"
#include "host/sys/utf8.h"
#include "sdk/ui/window.h"

#include <algorithm>

namespace quor::fuzz {

namespace {

std::string firstDifference(const std::vector<ui::DrawingCall>& before, const std::vector<ui::DrawingCall>& now) {
    const auto [old, found] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    return (old == before.end() ? "nothing" : toUtf8(ui::lineOf(*old))) + " -> " +
           (found == now.end() ? "nothing" : toUtf8(ui::lineOf(*found)));
}

} // namespace

void PaintedLook::paint(CWnd& window) {
    const bool hasAsked = window.needsPaint();
    ui::RecordingDevice device;
    CDC context(device);
    window.dispatchPaint(context);
    take(window, hasAsked, device.calls());
    for (CWnd* const child : window.children())
        if (child->isShown())
            paint(*child);
}

void PaintedLook::take(CWnd& window, bool hasAsked, std::vector<ui::DrawingCall> calls) {
    std::erase_if(looks_, [](const Look& look) { return !look.window; });
    const auto known = std::ranges::find_if(looks_, [&](const Look& look) { return look.window.get() == &window; });
    if (known == looks_.end()) {
        looks_.push_back({ui::WindowRef(&window), std::move(calls)});
        return;
    }
    if (!hasAsked && calls != known->calls)
        fail("looks different without asking to be painted: " + firstDifference(known->calls, calls));
    known->calls = std::move(calls);
}

} // namespace quor::fuzz
