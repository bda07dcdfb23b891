#include "desktop/palettes/window_view.h"

#include "desktop/palettes/header_widget.h"
#include "desktop/palettes/list_view.h"
#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/palette_area.h"
#include "desktop/palettes/tooltips.h"
#include "desktop/qt_text.h"
#include "host/ui/focus.h"
#include "sdk/ui/controls.h"

#include <algorithm>

namespace quor::desktop {

namespace {

using Change = ui::WindowPeer::Change;

// What a screen reader calls a control that has no text of its own: the label before it.
ZrString accessibleName(const CWnd& window) {
    if (!window.GetWindowText().empty() || window.GetParent() == nullptr)
        return window.GetWindowText();
    const auto siblings = window.GetParent()->children();
    const auto at = std::ranges::find(siblings, &window);
    const bool isLabelled =
        at != siblings.begin() && at != siblings.end() && dynamic_cast<const CStatic*>(*(at - 1)) != nullptr;
    return isLabelled ? (*(at - 1))->GetWindowText() : ZrString();
}

template <class Widget, class Window>
QWidget& attach(Window& window, QWidget& parent) {
    auto* const widget = new Widget(window, &parent); // the parent's, and the peer's
    window.attachPeer(std::make_unique<WidgetPeer>(*widget));
    return *widget;
}

QWidget& newWidget(CWnd& window, QWidget& parent) {
    if (auto* const list = dynamic_cast<CListCtrl*>(&window))
        return attach<ListView>(*list, parent);
    if (dynamic_cast<CHeaderCtrl*>(&window) != nullptr)
        return attach<HeaderWidget>(window, parent);
    return attach<WindowWidget>(window, parent);
}

void showChild(CWnd& window, QWidget& parent) {
    if (dynamic_cast<CToolTipCtrl*>(&window) != nullptr)
        return window.attachPeer(std::make_unique<TooltipPeer>());
    QWidget& widget = newWidget(window, parent);
    for (const Change change : {Change::Place, Change::Text, Change::Enabled})
        followWindow(widget, window, change);
    showChildren(window, widget);
    followWindow(widget, window, Change::Visibility);
}

void followFocus(QWidget& widget, const CWnd& window) {
    if (window.hasFocus()) {
        if (!widget.hasFocus())
            widget.setFocus(Qt::OtherFocusReason);
        return;
    }
    PaletteArea* const area = PaletteArea::around(widget);
    if (area != nullptr && widget.hasFocus() && CWnd::GetFocus() == nullptr)
        Q_EMIT area->keyboardGivenUp();
}

} // namespace

// The widget may be handling an event right now.
WidgetPeer::~WidgetPeer() {
    if (widget_ == nullptr)
        return;
    widget_->hide();
    widget_->deleteLater();
}

void WidgetPeer::changed(CWnd& window, Change change) {
    if (widget_ != nullptr)
        view_->windowChanged(window, change);
}

QWidget* widgetOf(const CWnd& window) {
    const auto* const peer = dynamic_cast<const WidgetPeer*>(window.peer());
    return peer != nullptr ? peer->widget() : nullptr;
}

void showChildren(CWnd& window, QWidget& widget) {
    for (CWnd* const child : window.children())
        if (child->peer() == nullptr)
            showChild(*child, widget);
}

void followWindow(QWidget& widget, CWnd& window, Change change) {
    switch (change) {
    case Change::Text:
        widget.setAccessibleName(toQt(accessibleName(window)));
        return;
    case Change::Place:
        widget.setGeometry(toQt(window.GetRectInParent()));
        return;
    case Change::Visibility:
        widget.setVisible(window.isShown());
        return;
    case Change::Enabled:
        widget.setEnabled(window.IsWindowEnabled());
        return;
    case Change::Focus:
        return followFocus(widget, window);
    case Change::Picture:
        widget.update();
        return;
    case Change::Content:
        showChildren(window, widget);
        widget.update();
        return;
    case Change::Icon:
        return;
    }
}

void takeKeyboard(CWnd& window) { window.SetFocus(); }

// A menu that pops up only borrows it.
void loseKeyboard(const CWnd& window, Qt::FocusReason reason) {
    if (window.hasFocus() && reason != Qt::PopupFocusReason)
        ui::focusDrawing();
}

} // namespace quor::desktop
