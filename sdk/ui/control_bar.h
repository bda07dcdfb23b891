// Bars of the main frame, docked or floating.
#pragma once

#include "sdk/ui/window.h"

#include <optional>

// A window that the main frame shows and hides.
class CControlBar : public CWnd {
public:
    // Whether it is shown, as far as it is up to the bar.
    [[nodiscard]] virtual bool IsVisible() const { return IsWindow() && isShown(); }

protected:
    friend class CZrMainFrame;
    // Makes its window, hidden, when it is shown for the first time. False when there is none; the bar may be gone
    // then.
    virtual bool createWindow(CWnd& frame) = 0;
    // Its visibility has really changed.
    virtual void visibilityChanged(bool /*shown*/) {}
};

// A bar that can be docked. Without a toolkit it floats.
class CZkUiDockControlBar : public CControlBar {
public:
    // Where it floats at first, on the screen, in its pixels.
    void SetInitialFloatingRect(const CRect& rect) { floating_ = rect; }
    [[nodiscard]] const CRect& GetFloatingRect() const { return floating_; }
    // The person, or the program that shows it, has moved or sized it; it floats there and is laid out anew.
    void SetFloatingRect(const CRect& rect);
    // The program that shows it has docked it there, on the screen. That is its place until it floats again; where it
    // floated is kept.
    void SetDockedRect(const CRect& rect);
    [[nodiscard]] bool IsDocked() const { return docked_.has_value(); }
    // Width and height below which it cannot be made; none at first.
    void SetMinSize(const CSize& size) { minSize_ = size; }

protected:
    // What the frame goes by.
    [[nodiscard]] virtual CSize smallestSize() const { return minSize_; }
    // Lays out what is inside; called when the frame recalculates its layout and when the size has changed.
    virtual void layOut(const CRect& /*client*/) {}
    void OnSize(int width, int height) override;

private:
    friend class CZrMainFrame;
    // Where it is docked; else where it floats, large enough.
    [[nodiscard]] CRect place() const;

    CRect floating_;
    std::optional<CRect> docked_;
    CSize minSize_;
};
