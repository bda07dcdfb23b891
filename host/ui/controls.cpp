#include "sdk/ui/controls.h"

#include "sdk/sys/system.h"
#include "sdk/ui/ui_service.h"

using quor::ui::DrawItem;
using quor::ui::Notification;

namespace {

struct Look {
    int background;
    int text;
};

// Labels and buttons that do not draw themselves: one line of text in the colours of the theme.
void drawText(const CWnd& control, const DrawItem& item, Look look) {
    const ZwTheme& theme = CZwSystem::instance().ui().theme();
    item.dc.FillSolidRect(item.rect, theme.color(look.background));
    item.dc.SetTextColor(theme.color(look.text));
    const int mode = item.dc.SetBkMode(TRANSPARENT);
    item.dc.DrawText(control.GetWindowText(), item.rect, DT_SINGLELINE | DT_VCENTER);
    item.dc.SetBkMode(mode);
    if (item.focused)
        item.dc.DrawFocusRect(item.rect);
}

} // namespace

void CStatic::OnPaint(CDC& dc) {
    const quor::ui::DrawItem item{.dc = dc, .rect = GetClientRect()};
    if ((GetStyle() & SS_TYPEMASK) == SS_OWNERDRAW)
        DrawItem(item);
    else
        CStatic::DrawItem(item);
}

void CStatic::DrawItem(const quor::ui::DrawItem& item) {
    drawText(*this, item, {kThemeLabelBackground, kThemeLabelText});
}

void CStatic::OnLButtonDown(unsigned /*flags*/, CPoint /*point*/) {
    if ((GetStyle() & SS_NOTIFY) != 0)
        notifyParent({.code = Notification::Code::Click});
}

void CButton::OnPaint(CDC& dc) {
    const quor::ui::DrawItem item{.dc = dc, .rect = GetClientRect(), .focused = hasFocus()};
    if ((GetStyle() & BS_TYPEMASK) == BS_OWNERDRAW)
        DrawItem(item);
    else
        CButton::DrawItem(item);
}

void CButton::DrawItem(const quor::ui::DrawItem& item) {
    drawText(*this, item, {kThemePanelBackground, kThemePanelText});
}

void CButton::OnLButtonUp(unsigned /*flags*/, CPoint point) {
    if (!GetClientRect().PtInRect(point))
        return;
    if ((GetStyle() & BS_NOTIFY) != 0)
        notifyParent({.code = Notification::Code::Click});
    else if (GetParent() != nullptr)
        GetParent()->SendMessage(WM_COMMAND, GetDlgCtrlID());
}
