// Tooltips of windows: the host says which tip it would be, Qt when the mouse rests.
#pragma once

#include "sdk/ui/tooltip.h"

class QHelpEvent;
class QWidget;

namespace quor::desktop {

// The tip that a control shows for a window now; empty when there is none.
[[nodiscard]] ZrString tipOf(CWnd& window);
// The mouse rests in the widget of a window.
void showTip(QWidget& widget, const ui::WindowRef& window, const QHelpEvent& event);

// Takes the tip away when its control does.
class TooltipPeer final : public ui::WindowPeer {
public:
    void changed(CWnd& window, Change change) override;
};

} // namespace quor::desktop
