// What all widgets that show windows of the host have in common: they follow their window, and their window goes
// before them or after them, as it happens.
#pragma once

#include "sdk/ui/window.h"

#include <QPointer>
#include <QWidget>

namespace quor::desktop {

class WindowView {
public:
    virtual ~WindowView() = default;
    virtual void windowChanged(CWnd& window, ui::WindowPeer::Change change) = 0;
};

// Ties a widget to its window: tells it of changes, and takes it away with the window.
class WidgetPeer final : public ui::WindowPeer {
public:
    template <class Widget>
    explicit WidgetPeer(Widget& widget) : widget_(&widget), view_(&widget) {}
    ~WidgetPeer() override;
    WidgetPeer(const WidgetPeer&) = delete;
    WidgetPeer& operator=(const WidgetPeer&) = delete;

    void changed(CWnd& window, Change change) override;
    [[nodiscard]] QWidget* widget() const { return widget_; }

private:
    QPointer<QWidget> widget_; // null once Qt has destroyed it
    WindowView* view_;
};

// The widget that shows a window; null when there is none.
[[nodiscard]] QWidget* widgetOf(const CWnd& window);
// Makes a widget inside another one for each child window that has none yet, and for theirs.
void showChildren(CWnd& window, QWidget& widget);
// What every child widget does after a change of its window: place, visibility, text, keyboard and so on.
void followWindow(QWidget& widget, CWnd& window, ui::WindowPeer::Change change);
// A widget of a window gets the keyboard, or loses it to somebody else.
void takeKeyboard(CWnd& window);
void loseKeyboard(const CWnd& window, Qt::FocusReason reason);

} // namespace quor::desktop
