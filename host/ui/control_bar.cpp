#include "sdk/ui/control_bar.h"

#include <algorithm>

void CZkUiDockControlBar::SetFloatingRect(const CRect& rect) {
    floating_ = rect;
    docked_.reset();
    if (IsWindow())
        MoveWindow(place());
}

void CZkUiDockControlBar::SetDockedRect(const CRect& rect) {
    docked_ = rect;
    if (IsWindow())
        MoveWindow(place());
}

void CZkUiDockControlBar::OnSize(int width, int height) { layOut({0, 0, width, height}); }

CRect CZkUiDockControlBar::place() const {
    if (docked_)
        return *docked_;
    const CSize least = smallestSize();
    const int width = std::max({floating_.Width(), least.cx, 0});
    const int height = std::max({floating_.Height(), least.cy, 0});
    return {floating_.left, floating_.top, floating_.left + width, floating_.top + height};
}
