#include "desktop/palettes/header_widget.h"

#include <QMouseEvent>
#include <QStyle>

#include <algorithm>
#include <cstdlib>

namespace quor::desktop {

namespace {
constexpr int kLeastWidth = 12;
} // namespace

// Of two edges in one place it is that of the column that was made narrow last: the one farther right.
int HeaderWidget::edgeAt(int x) const {
    const CHeaderCtrl* const shown = header();
    const int reach = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    int column = shown != nullptr ? shown->GetItemCount() - 1 : -1;
    while (column >= 0 && std::abs(shown->GetItemRect(column).right - x) > reach)
        --column;
    return column;
}

void HeaderWidget::mousePressEvent(QMouseEvent* event) {
    const int x = event->position().toPoint().x();
    widened_ = event->button() == Qt::LeftButton ? edgeAt(x) : -1;
    if (widened_ < 0)
        return WindowWidget::mousePressEvent(event);
    grip_ = header()->GetItemRect(widened_).right - x;
    event->accept();
}

// Two clicks in a row are two clicks, however fast.
void HeaderWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->globalPosition(), event->button(),
                      event->buttons(), event->modifiers());
    mousePressEvent(&press);
}

void HeaderWidget::mouseMoveEvent(QMouseEvent* event) {
    const int x = event->position().toPoint().x();
    if (widened_ >= 0)
        return widen(x);
    if (edgeAt(x) >= 0)
        setCursor(Qt::SplitHCursor);
    else
        unsetCursor();
    WindowWidget::mouseMoveEvent(event);
}

void HeaderWidget::widen(int x) {
    CHeaderCtrl* const shown = header();
    const CHeaderCtrl::Item* const item = shown != nullptr ? shown->GetItem(widened_) : nullptr;
    if (item == nullptr)
        return;
    CHeaderCtrl::Item changed = *item;
    changed.width = std::max(kLeastWidth, x + grip_ - shown->GetItemRect(widened_).left);
    shown->SetItem(widened_, changed);
}

void HeaderWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (widened_ < 0)
        return WindowWidget::mouseReleaseEvent(event);
    widened_ = -1;
    event->accept();
}

} // namespace quor::desktop
