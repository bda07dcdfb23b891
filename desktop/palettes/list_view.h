// A native view over a list of the host: scroll bars, keyboard and accessibility are Qt's, rows and what a person does
// to them are the control's. It is not one of Qt's item views: they lay out all rows anew when one comes or goes, and
// keep a selection of their own, of which the control has one bit per row.
#pragma once

#include "desktop/palettes/picture_cache.h"
#include "desktop/palettes/window_view.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/window_ref.h"

#include <QAbstractScrollArea>

namespace quor::desktop {

class ListView final : public QAbstractScrollArea, public WindowView {
    Q_OBJECT

public:
    ListView(CListCtrl& list, QWidget* parent);

    // Null once the list is gone.
    [[nodiscard]] CListCtrl* list() const { return dynamic_cast<CListCtrl*>(window_.get()); }
    // Where a row is, in coordinates of this widget; empty when it cannot be seen.
    [[nodiscard]] QRect rowRect(int index) const;
    void windowChanged(CWnd& window, ui::WindowPeer::Change change) override;

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    // The menu key opens the menu of the focused row. That of the mouse comes when its button is let go.
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    // Once per round of the event loop, however much has changed.
    void syncLater();
    void sync();
    void syncHeader(const CListCtrl& list);
    void tellFocusedRow(const CListCtrl& list);

    ui::WindowRef window_;
    PictureCache pictures_;
    bool isSyncing_ = false;
    bool syncWaits_ = false;
    int wheelRest_ = 0; // eighths of a degree that made no line yet
    int focusedRow_ = -1;
};

} // namespace quor::desktop
