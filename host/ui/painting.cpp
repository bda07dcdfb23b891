#include "host/ui/painting.h"

#include "sdk/ui/window.h"

namespace quor::ui {

namespace {

void paintInPlace(CWnd& child, DrawingDevice& device) {
    device.enter(child.GetRectInParent());
    paint(child, device);
    device.leave();
}

} // namespace

void paint(CWnd& window, DrawingDevice& device) {
    if (!window.IsWindow())
        return;
    CDC context(device);
    window.dispatchPaint(context);
    for (CWnd* child : window.children()) {
        if (child->isShown())
            paintInPlace(*child, device);
    }
}

} // namespace quor::ui
