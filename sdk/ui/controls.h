// Labels and buttons.
#pragma once

#include "sdk/ui/window.h"

// The kind of a label and of a button stands in the lowest four bits of the style.
inline constexpr unsigned SS_TYPEMASK = 0xF;
inline constexpr unsigned SS_OWNERDRAW = 0xD; // drawn by the control's own DrawItem()
inline constexpr unsigned SS_NOTIFY = 0x100;  // tells its parent of clicks
inline constexpr unsigned BS_TYPEMASK = 0xF;
inline constexpr unsigned BS_OWNERDRAW = 0xB;
inline constexpr unsigned BS_NOTIFY = 0x4000;

class CStatic : public CWnd {
protected:
    // Draws the whole label when it is owner-drawn; else the host draws its text.
    virtual void DrawItem(const quor::ui::DrawItem& item);
    void OnPaint(CDC& dc) override;
    void OnLButtonDown(unsigned flags, CPoint point) override;
};

class CButton : public CWnd {
protected:
    virtual void DrawItem(const quor::ui::DrawItem& item);
    void OnPaint(CDC& dc) override;
    // A click that is let go on the button sends its parent the command of its number, unless it only tells clicks
    // (BS_NOTIFY).
    void OnLButtonUp(unsigned flags, CPoint point) override;
};
