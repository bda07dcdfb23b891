// A person at the desktop program: what they do is done in the program's own thread, one thing after the other, and
// each is waited for, so that tests read from top to bottom.
#pragma once

#include "desktop/program.h"

#include <QPoint>
#include <QString>

#include <atomic>
#include <functional>

class QWidget;

namespace quor::desktop::test {

class Person {
public:
    explicit Person(Program& program) : program_(program) {}

    // Types a line into the window, Enter at its end; an empty one is Enter alone.
    void types(const QString& line);
    // Presses one key in the widget that has the keyboard.
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Does something to widgets, in the program's thread; a dialog that it opens is not waited for.
    void does(const std::function<void()>& action);
    // The same without waiting: the program may end with it.
    void doesAtLast(const std::function<void()>& action) { post(action); }
    // Looks at something, in the program's thread.
    template <class Look>
    auto sees(Look&& look) {
        decltype(look()) seen{};
        inProgram([&] { seen = look(); });
        return seen;
    }
    // Until the program waits for the person again: at a question or in a dialog.
    void waits();
    // Until what the windows have left for later is done, too.
    void settles();
    // Whether it has ended, now or within the seconds of a person's patience. Then nothing is done any more.
    [[nodiscard]] bool hasEnded() const { return ended_; }
    [[nodiscard]] bool sawItEnd() const;
    // Told by whoever runs the program.
    void markEnded() { ended_ = true; }
    // Keeps a picture of a widget (null: the main window) among the test output.
    void takesPicture(const QString& name, QWidget* widget = nullptr);
    // What the command line has said so far, prompts and answers included.
    [[nodiscard]] QString screen();

    [[nodiscard]] Program& program() { return program_; }

private:
    void inProgram(const std::function<void()>& action);
    void post(const std::function<void()>& action);

    Program& program_;
    std::atomic<bool> ended_ = false;
};

// Runs the program with a person at it: `story` is told in a thread of its own; when it ends, the program is closed
// without saving, unless the person has ended it; it can be looked at as long as the story is told. Settings are those
// of a new user, in a folder of their own. The status that the program ends with.
int withProgram(ProgramOptions options, const std::function<void(Person&)>& story);
// A new user with the light module, in Chinese, with one new drawing.
[[nodiscard]] ProgramOptions usualOptions();

} // namespace quor::desktop::test
