// The host's main window, as far as modules need it.
#pragma once

#include "sdk/ui/control_bar.h"

class CZrMainFrame : public CWnd {
public:
    // Shows or hides a bar; its window is made the first time. `delay`: its place is decided at the next
    // RecalcLayout(). A bar whose window cannot be made stays without one. What the program that shows it throws comes
    // through.
    void ShowControlBar(CControlBar* bar, bool show, bool delay);
    // Gives every shown bar its place.
    void RecalcLayout();
};

// Null while no host is running.
[[nodiscard]] CZrMainFrame* zredGetQuorFrame();
