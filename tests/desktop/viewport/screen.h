// The drawing area of the running program under a person's hands.
#pragma once

#include "desktop/viewport/viewport.h"
#include "tests/desktop/support/person.h"

#include <QPoint>

#include <vector>

namespace quor::desktop::test {

class Screen {
public:
    // 800 by 600 pixels, from above: a unit is ten pixels, the origin is in the middle. Default lighting is off.
    explicit Screen(Person& person);

    [[nodiscard]] Person& person() { return person_; }
    [[nodiscard]] Viewport& viewport() { return *viewport_; }
    // Where a point of the world is seen.
    [[nodiscard]] QPoint at(const ZrGePoint3d& world);
    // What stands at a place of the picture, in the plane z = 0.
    [[nodiscard]] ZrGePoint3d worldAt(QPoint place);

    // Answers the question that waits.
    void types(const ZrString& line);
    // Each line in turn.
    void types(std::initializer_list<ZrString> lines);
    void moves(QPoint place);
    void clicks(QPoint place, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});
    void doubleClicks(QPoint place, Qt::MouseButton button);
    // Presses, moves in steps, lets go.
    void drags(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});
    // Notches of the wheel, away from the person.
    void turnsWheel(QPoint place, int notches);
    void swipes(QPoint place, QPoint way);
    void pinches(QPoint place, double more);
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    // Until nothing moves any more.
    void waitsUntilStill();
    void takesPicture(const QString& name);

    [[nodiscard]] gs::Camera camera();
    void looksWith(const gs::Camera& camera);
    [[nodiscard]] ZrDbObjectIdArray selected();
    // Objects of the current space, in drawing order.
    [[nodiscard]] ZrDbObjectIdArray objects();
    // What is asked for; nothing while a dialog is open.
    [[nodiscard]] std::optional<Question::Kind> question();

private:
    Person& person_;
    Viewport* viewport_ = nullptr;
};

// Runs the program with a person who looks at its drawing area.
void withScreen(const std::function<void(Screen&)>& story);

} // namespace quor::desktop::test
