#include "tests/desktop/viewport/screen.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/window/main_window.h"
#include "host/ed/pick.h"
#include "host/sys/system_variables.h"

#include <QApplication>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QTest>
#include <QThread>
#include <QWheelEvent>

namespace quor::desktop::test {

namespace {

void move(QWidget& widget, QPoint place, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
    QMouseEvent event(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, buttons, modifiers);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

Screen::Screen(Person& person) : person_(person) {
    person_.does([this] {
        MainWindow& window = person_.program().window();
        viewport_ = window.findChild<Viewport*>();
        viewport_->setFixedSize(800, 600);
        gs::Camera fromAbove;
        fromAbove.height = 60;
        viewport_->setCamera(fromAbove);
        // So that light commands do not ask about it first.
        person_.program().session().variables().set(L"DEFAULTLIGHTING", short{0});
        QApplication::processEvents();
    });
}

QPoint Screen::at(const ZrGePoint3d& world) {
    return person_.sees([&] {
        const gs::Projector projector(viewport_->camera(), viewport_->size());
        const gs::ScreenPoint seen = projector.toScreen(world).value_or(gs::ScreenPoint{-1, -1});
        return QPointF(seen.x, seen.y).toPoint();
    });
}

ZrGePoint3d Screen::worldAt(QPoint place) {
    return person_.sees([&] {
        const gs::Projector projector(viewport_->camera(), viewport_->size());
        return projector.onPlane(place.x(), place.y(), {}, ZrGeVector3d::kZAxis).value_or(ZrGePoint3d(-1, -1, -1));
    });
}

void Screen::types(const ZrString& line) {
    person_.does([&] { person_.program().front().giveText(line); });
}

void Screen::types(std::initializer_list<ZrString> lines) {
    for (const ZrString& line : lines)
        types(line);
}

void Screen::moves(QPoint place) {
    person_.does([=, this] { move(*viewport_, place, {}, {}); });
}

void Screen::clicks(QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    person_.does([=, this] { QTest::mouseClick(viewport_, button, modifiers, place); });
}

void Screen::doubleClicks(QPoint place, Qt::MouseButton button) {
    clicks(place, button);
    person_.does([=, this] {
        QTest::mouseDClick(viewport_, button, {}, place);
        QTest::mouseRelease(viewport_, button, {}, place);
    });
}

void Screen::drags(QPoint from, QPoint to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    person_.does([=, this] {
        QTest::mousePress(viewport_, button, modifiers, from);
        move(*viewport_, (from + to) / 2, button, modifiers);
        move(*viewport_, to, button, modifiers);
        QTest::mouseRelease(viewport_, button, modifiers, to);
    });
}

void Screen::turnsWheel(QPoint place, int notches) {
    person_.does([=, this] {
        QWheelEvent event(place, viewport_->mapToGlobal(place), {}, {0, notches * 120}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(viewport_, &event);
    });
}

void Screen::swipes(QPoint place, QPoint way) {
    person_.does([=, this] {
        QWheelEvent event(place, viewport_->mapToGlobal(place), way, way, {}, {}, Qt::ScrollUpdate, false);
        QApplication::sendEvent(viewport_, &event);
    });
}

void Screen::pinches(QPoint place, double more) {
    person_.does([=, this] {
        QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, place, place,
                                  viewport_->mapToGlobal(place), more, {});
        QApplication::sendEvent(viewport_, &event);
    });
}

void Screen::presses(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    person_.does([=, this] { QTest::keyClick(viewport_, key, modifiers); });
}

void Screen::waitsUntilStill() {
    QThread::msleep(200);
    person_.waits();
}

void Screen::takesPicture(const QString& name) { person_.takesPicture(name, viewport_); }

gs::Camera Screen::camera() {
    return person_.sees([&] { return viewport_->camera(); });
}

void Screen::looksWith(const gs::Camera& camera) {
    person_.does([=, this] { viewport_->setCamera(camera); });
}

ZrDbObjectIdArray Screen::selected() {
    return person_.sees([] { return zredImpliedSelection(); });
}

ZrDbObjectIdArray Screen::objects() {
    return person_.sees([&] { return ed::entitiesOfCurrentSpace(*person_.program().session().documents().current()); });
}

std::optional<Question::Kind> Screen::question() {
    return person_.sees([&] {
        const Question* const open = person_.program().front().question();
        return open != nullptr ? std::optional(open->kind) : std::nullopt;
    });
}

void withScreen(const std::function<void(Screen&)>& story) {
    withProgram(usualOptions(), [&](Person& person) {
        Screen screen(person);
        story(screen);
    });
}

} // namespace quor::desktop::test
