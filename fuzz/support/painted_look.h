// What windows looked like when they were painted last: one that looks different now has to have asked for it.
#pragma once

#include "host/ui/recording_device.h"
#include "sdk/ui/window_ref.h"

#include <vector>

namespace quor::fuzz {

class PaintedLook {
public:
    // Paints the window and all that are shown in it, one by one. A program with a screen paints only those that need
    // it: the others must look as they did.
    void paint(CWnd& window);

private:
    struct Look {
        ui::WindowRef window;
        std::vector<ui::DrawingCall> calls;
    };

    void take(CWnd& window, bool hasAsked, std::vector<ui::DrawingCall> calls);

    std::vector<Look> looks_;
};

} // namespace quor::fuzz
