#include "desktop/palettes/list_view.h"

#include "desktop/palettes/painter_device.h"
#include "desktop/palettes/person_input.h"
#include "desktop/palettes/tooltips.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <cstdlib>
#include <utility>

namespace quor::desktop {

namespace {

constexpr int kWheelNotch = 120; // eighths of a degree

int widthOfColumns(const CListCtrl& list) {
    int width = 0;
    for (int column = 0; column < list.GetHeaderCtrl()->GetItemCount(); ++column)
        width += list.GetColumnWidth(column);
    return width;
}

} // namespace

ListView::ListView(CListCtrl& list, QWidget* parent) : QAbstractScrollArea(parent), window_(&list) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    syncLater();
}

void ListView::windowChanged(CWnd& window, ui::WindowPeer::Change change) {
    using Change = ui::WindowPeer::Change;
    followWindow(*this, window, change);
    if (change == Change::Content || change == Change::Picture)
        syncLater();
}

void ListView::syncLater() {
    viewport()->update();
    if (!std::exchange(syncWaits_, true))
        QTimer::singleShot(0, this, [this] { sync(); });
}

void ListView::sync() {
    syncWaits_ = false;
    CListCtrl* const shown = list();
    if (shown == nullptr || isSyncing_)
        return;
    const QScopedValueRollback syncing(isSyncing_, true);
    syncHeader(*shown);
    shown->SetScrollBarSpace({width() - viewport()->width(), height() - viewport()->geometry().bottom() - 1});
    const int page = shown->GetCountPerPage();
    verticalScrollBar()->setPageStep(std::max(1, page));
    verticalScrollBar()->setRange(0, std::max(0, shown->GetItemCount() - std::max(1, page)));
    verticalScrollBar()->setValue(shown->GetTopIndex());
    shown->SetScrollLeft(shown->GetScrollLeft());
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(shown->rowHeight());
    horizontalScrollBar()->setRange(0, std::max(0, widthOfColumns(*shown) - viewport()->width()));
    horizontalScrollBar()->setValue(shown->GetScrollLeft());
    tellFocusedRow(*shown);
}

// The headings stand above the rows; scroll bars cover them.
void ListView::syncHeader(const CListCtrl& list) {
    const CHeaderCtrl* const header = list.GetHeaderCtrl();
    setViewportMargins(0, header->isShown() ? header->GetRectInParent().Height() : 0, 0, 0);
    if (QWidget* const headings = widgetOf(*header))
        headings->stackUnder(viewport());
}

void ListView::tellFocusedRow(const CListCtrl& list) {
    const int row = list.GetNextItem(-1, LVNI_FOCUSED);
    if (std::exchange(focusedRow_, row) == row || row < 0 || !hasFocus())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void ListView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    CListCtrl* const shown = list();
    if (shown == nullptr || isSyncing_)
        return;
    shown->SetTopIndex(verticalScrollBar()->value());
    shown->SetScrollLeft(horizontalScrollBar()->value());
}

void ListView::resizeEvent(QResizeEvent* /*event*/) { syncLater(); }

QRect ListView::rowRect(int index) const {
    const CListCtrl* const shown = list();
    if (shown == nullptr)
        return {};
    return toQt(shown->GetItemRect(index, LVIR_BOUNDS)).intersected(viewport()->geometry());
}

void ListView::paintEvent(QPaintEvent* /*event*/) {
    if (!window_)
        return;
    QPainter painter(viewport());
    painter.translate(-viewport()->pos());
    paintWindow(*window_, painter, *this, pictures_);
}

void ListView::mousePressEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event, viewport()->pos()); }
void ListView::mouseReleaseEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event, viewport()->pos()); }
void ListView::mouseDoubleClickEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event, viewport()->pos()); }
void ListView::mouseMoveEvent(QMouseEvent* event) { handOverMouse(*this, window_, *event, viewport()->pos()); }

// Whole lines go to the list; what is left of a fine wheel waits for more.
void ListView::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    if (std::abs(turned.x()) > std::abs(turned.y())) {
        QApplication::sendEvent(horizontalScrollBar(), event);
        return;
    }
    wheelRest_ += turned.y() * QApplication::wheelScrollLines();
    const int lines = wheelRest_ / kWheelNotch;
    wheelRest_ -= lines * kWheelNotch;
    event->accept();
    if (lines != 0)
        handOver(*this, {.kind = InputMessage::Kind::Wheel,
                         .window = window_.get(),
                         .point = fromQt(event->position().toPoint() + viewport()->pos()),
                         .flags = heldKeys(event->modifiers()),
                         .lines = -lines});
}

// What is not for the list goes on to the windows around it, and is typed there.
void ListView::keyPressEvent(QKeyEvent* event) {
    const bool isKnown = keyOf(*event).has_value();
    event->setAccepted(isKnown);
    if (isKnown)
        handOverKey(*this, window_, *event);
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    const CListCtrl* const shown = list();
    if (event->reason() != QContextMenuEvent::Keyboard || shown == nullptr)
        return;
    const int row = shown->GetNextItem(-1, LVNI_FOCUSED);
    const QRect place = rowRect(row);
    if (!place.isEmpty())
        askForMenu(*this, window_, fromQt(place.center()));
    else if (CWnd* const parent = row < 0 ? shown->GetParent() : nullptr)
        askForMenu(*this, ui::WindowRef(parent), shown->GetRectInParent().TopLeft());
}

// Before shortcuts of the main window, such as Delete.
bool ListView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && keyOf(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

bool ListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    showTip(*viewport(), window_, *static_cast<QHelpEvent*>(event));
    return true;
}

void ListView::focusInEvent(QFocusEvent* /*event*/) {
    if (window_)
        takeKeyboard(*window_);
}

void ListView::focusOutEvent(QFocusEvent* event) {
    if (window_)
        loseKeyboard(*window_, event->reason());
}

} // namespace quor::desktop
