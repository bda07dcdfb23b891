// The headings of a list's columns. The window draws them and is told of clicks; the person widens a column by its
// edge.
#pragma once

#include "desktop/palettes/window_widget.h"
#include "sdk/ui/header_control.h"

namespace quor::desktop {

class HeaderWidget final : public WindowWidget {
    Q_OBJECT

public:
    using WindowWidget::WindowWidget;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] CHeaderCtrl* header() const { return dynamic_cast<CHeaderCtrl*>(shownWindow()); }
    // The column whose right edge is there, or -1.
    [[nodiscard]] int edgeAt(int x) const;
    void widen(int x);

    int widened_ = -1; // the column whose edge is being moved
    int grip_ = 0;     // how far left of its edge it was taken
};

} // namespace quor::desktop
