// The host's main window, as far as modules need it.
#pragma once

#include "sdk/ui/control_bar.h"
#include "sdk/ui/window_ref.h"

// The host has one, shown from the start.
class CZrMainFrame : public CWnd {
public:
    // Shows or hides a bar; its window is made the first time. `delay`: its place is decided at the next
    // RecalcLayout(). A bar whose window cannot be made stays without one. What the program that shows it throws comes
    // through.
    void ShowControlBar(CControlBar* bar, bool show, bool delay);
    // Gives every shown bar its place.
    void RecalcLayout();

    // For the host: the bar that was brought to view the longest ago and was not asked for since, if it is still shown;
    // null when there is none.
    [[nodiscard]] CControlBar* takeBroughtToView();

private:
    struct Bar {
        CControlBar* bar;
        quor::ui::WindowRef window;
        bool broughtToView = false;
        [[nodiscard]] bool exists() const { return window.get() == bar; }
    };

    [[nodiscard]] Bar& known(CControlBar& bar);
    static void place(CControlBar& bar);

    std::vector<Bar> bars_;
};

// Null while no host is running.
[[nodiscard]] CZrMainFrame* zredGetQuorFrame();
