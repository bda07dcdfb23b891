// The mouse and the keyboard over the drawing.

#include "desktop/front/desktop_front_end.h"
#include "desktop/viewport/answer_menu.h"
#include "desktop/viewport/movements.h"
#include "desktop/viewport/viewport.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputDevice>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <algorithm>

namespace quor::desktop {

namespace {

// A finger on a touchpad moves what it touches; the notches of a wheel do not.
bool isTouchpad(const QWheelEvent& event) {
    const bool hasPhases = event.phase() != Qt::NoScrollPhase;
    return !event.pixelDelta().isNull() && (hasPhases || event.device()->type() == QInputDevice::DeviceType::TouchPad);
}

// What a person types at the command line without looking where the keyboard is.
bool isForCommandLine(const QKeyEvent& event) {
    constexpr int kKeys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Escape};
    const bool isText = !event.text().isEmpty() && event.text().front().isPrint();
    const bool isShortcut =
        event.modifiers().testFlag(Qt::ControlModifier) || event.modifiers().testFlag(Qt::AltModifier);
    return std::find(std::begin(kKeys), std::end(kKeys), event.key()) != std::end(kKeys) || (isText && !isShortcut);
}

} // namespace

void Viewport::hold(Held held, QPointF place) {
    if (view_ == nullptr)
        return;
    view_->update();
    held_ = held;
    hasHeldMoved_ = false;
    heldAt_ = place;
    heldCenter_ = held == Held::Orbit ? orbitCenter() : ZrGePoint3d();
    setCursor(held == Held::Pan ? Qt::ClosedHandCursor : Qt::SizeAllCursor);
}

void Viewport::moveHeld(QPointF place) {
    const QPointF way = place - heldAt_;
    heldAt_ = place;
    hasHeldMoved_ = true;
    navigate(held_ == Held::Orbit ? turned(camera(), heldCenter_, way)
                                  : gs::panned(camera(), size(), way.x(), way.y()));
}

void Viewport::mousePressEvent(QMouseEvent* event) {
    const QPointF place = event->position();
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    const bool withShift = event->modifiers().testFlag(Qt::ShiftModifier);
    cursor_ = place;
    if (event->button() == Qt::MiddleButton) {
        heldAsksExtents_ = withControl;
        hold(withControl || withShift ? Held::Orbit : Held::Pan, place);
    } else if (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::AltModifier)) {
        heldAsksExtents_ = false;
        hold(Held::Orbit, place);
    } else if (event->button() == Qt::LeftButton) {
        leftPress(place, event->modifiers());
    }
}

void Viewport::leftPress(QPointF place, Qt::KeyboardModifiers modifiers) {
    if (asksForPoint()) {
        view_->update();
        front_.givePoint(aimAt(place).point);
    } else if (asksForObjects()) {
        pressToPick(place, modifiers);
    }
}

// The button may have been let go where nobody heard of it: over a dialog, or while the host worked.
void Viewport::mouseMoveEvent(QMouseEvent* event) {
    if (held_ != Held::Nothing && event->buttons() == Qt::NoButton) {
        held_ = Held::Nothing;
        setCursor(Qt::BlankCursor);
        update();
    }
    if (held_ == Held::Nothing) {
        point(event->position());
        return;
    }
    cursor_ = event->position();
    moveHeld(event->position());
}

void Viewport::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        rightClick(event->globalPosition().toPoint());
        return;
    }
    if (held_ != Held::Nothing) {
        held_ = Held::Nothing;
        setCursor(Qt::BlankCursor);
        if (heldAsksExtents_ && !hasHeldMoved_)
            zoomExtents();
        update();
        return;
    }
    const bool isDrawn = rectangle_ && isRectanglePressed_ &&
                         (event->position() - rectangle_->from).manhattanLength() >= QApplication::startDragDistance();
    isRectanglePressed_ = false;
    if (isDrawn && asksForObjects())
        finishRectangle(event->position(), event->modifiers());
}

void Viewport::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        zoomExtents();
        return;
    }
    const bool opensProperties = event->button() == Qt::LeftButton && isAtCommandPrompt() && !rectangle_ &&
                                 !objectAt(event->position()).isNull();
    if (opensProperties)
        front_.run(L"_PROPERTIES");
    else
        mousePressEvent(event);
}

// Zooms to the cursor.
void Viewport::wheelEvent(QWheelEvent* event) {
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    event->accept();
    if (isTouchpad(*event) && !withControl)
        navigate(gs::panned(camera(), size(), event->pixelDelta().x(), event->pixelDelta().y()));
    else if (event->angleDelta().y() != 0)
        navigate(gs::zoomedAt(camera(), size(), event->position().x(), event->position().y(),
                              wheelFactor(event->angleDelta().y())));
}

bool Viewport::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture && pinch(*static_cast<QNativeGestureEvent*>(event)))
        return true;
    return QWidget::event(event);
}

bool Viewport::pinch(const QNativeGestureEvent& gesture) {
    if (gesture.gestureType() != Qt::ZoomNativeGesture)
        return false;
    navigate(gs::zoomedAt(camera(), size(), gesture.position().x(), gesture.position().y(), 1 + gesture.value()));
    return true;
}

// At a question the right button is Enter, or shows what may be answered.
void Viewport::rightClick(QPoint place) {
    const Question* const open = front_.question();
    if (open == nullptr)
        return;
    if (open->kind == Question::Kind::Command)
        Q_EMIT contextMenuRequested(place);
    else if (open->keywords.empty())
        front_.giveEnter();
    else
        makeAnswerMenu(front_, this)->popup(place);
}

// The menu key; the mouse has its own way.
void Viewport::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        rightClick(event->globalPos());
}

void Viewport::leaveEvent(QEvent*) {
    cursor_.reset();
    aim_.reset();
    isHoverDue_ = true;
    update();
}

bool Viewport::pressModeKey(int key) {
    if (key == Qt::Key_F3)
        toggleSnaps();
    else if (key == Qt::Key_F8)
        toggleOrtho();
    else
        return false;
    return true;
}

bool Viewport::pressViewKey(const QKeyEvent& event) {
    if (view_ == nullptr)
        return false;
    if (event.key() == Qt::Key_Home) {
        zoomExtents();
        return true;
    }
    const bool mayTurn = event.modifiers().testFlag(Qt::ControlModifier);
    const ZrGePoint3d center = mayTurn ? orbitCenter() : camera().target;
    const std::optional<gs::Camera> moved = movedByKey(camera(), size(), center, event.key(), event.modifiers());
    if (moved)
        navigate(*moved);
    return moved.has_value();
}

void Viewport::keyPressEvent(QKeyEvent* event) {
    if (pressModeKey(event->key()) || pressViewKey(*event))
        return;
    if (event->key() == Qt::Key_Escape && escape())
        return;
    if (event->key() == Qt::Key_Delete && isAtCommandPrompt()) {
        if (!zredImpliedSelection().empty())
            front_.run(L"._ERASE");
        return;
    }
    if (isForCommandLine(*event))
        Q_EMIT keyForCommandLine(event);
    else
        QWidget::keyPressEvent(event);
}

} // namespace quor::desktop
