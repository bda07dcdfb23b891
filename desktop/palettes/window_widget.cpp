#include "desktop/palettes/window_widget.h"

#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/person_input.h"
#include "desktop/palettes/tooltips.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>

namespace quor::desktop {

WindowWidget::WindowWidget(CWnd& window, QWidget* parent) : QWidget(parent), window_(&window) {
    setMouseTracking(true);
}

void WindowWidget::windowChanged(CWnd& window, ui::WindowPeer::Change change) { followWindow(*this, window, change); }

bool WindowWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    showTip(*this, window_, *static_cast<QHelpEvent*>(event));
    return true;
}

void WindowWidget::paintEvent(QPaintEvent* /*event*/) {
    if (!window_)
        return;
    QPainter painter(this);
    paintWindow(*window_, painter, *this, pictures_);
}

void WindowWidget::mousePressEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event); }
void WindowWidget::mouseReleaseEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event); }
void WindowWidget::mouseDoubleClickEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event); }
void WindowWidget::mouseMoveEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event); }
void WindowWidget::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

} // namespace quor::desktop
