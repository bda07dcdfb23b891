// A widget that shows a window which draws itself: a label, a panel, a dialog's background.
#pragma once

#include "desktop/palettes/picture_cache.h"
#include "desktop/palettes/window_view.h"
#include "sdk/ui/window_ref.h"

namespace quor::desktop {

class WindowWidget : public QWidget, public WindowView {
    Q_OBJECT

public:
    WindowWidget(CWnd& window, QWidget* parent);

    // Null once the window is gone.
    [[nodiscard]] CWnd* shownWindow() const { return window_.get(); }
    void windowChanged(CWnd& window, ui::WindowPeer::Change change) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    // The window asks for its menu when the right button is let go.
    void contextMenuEvent(QContextMenuEvent* event) override;

    [[nodiscard]] const ui::WindowRef& windowRef() const { return window_; }

private:
    ui::WindowRef window_;
    PictureCache pictures_;
};

} // namespace quor::desktop
