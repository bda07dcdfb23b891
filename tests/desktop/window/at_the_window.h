// The main window of a running program, as the person who sits at it sees and uses it.
#pragma once

#include "desktop/window/main_window.h"
#include "tests/desktop/support/person.h"

#include <QStringList>

class QAbstractButton;
class QTabBar;

namespace quor::desktop::test {

class AtTheWindow {
public:
    explicit AtTheWindow(Person& person);

    [[nodiscard]] Person& person() { return person_; }
    [[nodiscard]] MainWindow& window() { return person_.program().window(); }
    [[nodiscard]] QTabBar& tabs() { return *tabs_; }
    [[nodiscard]] Viewport& viewport();
    template <class Widget>
    Widget& part(const char* name) {
        return *person_.sees([&] { return window().findChild<Widget*>(name); });
    }

    void types(const QString& line) { person_.types(line); }
    void types(std::initializer_list<const char*> lines);
    // A line with characters that no keyboard has.
    void runs(const QString& line);
    void opens(const QString& file) { runs("OPEN " + file); }
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { person_.presses(key, modifiers); }
    // Keys in the input line, Enter not included.
    void writes(const QString& text);
    // Gives the keyboard to the drawing, which takes no text itself.
    void goesToTheDrawing();
    // Chooses in a menu or on a tool bar.
    void chooses(const char* action);
    void clicksOnToolBar(const char* action);
    // The switch of the status bar for an action.
    [[nodiscard]] QAbstractButton& statusSwitch(const char* action);
    void clicks(QWidget& widget);

    void clicksTab(int index, Qt::MouseButton button = Qt::LeftButton);
    void closesTab(int index);
    [[nodiscard]] QStringList tabTexts();
    [[nodiscard]] int currentTab();
    // Closes the question for the changes of a drawing without saving, if it is open.
    void discards();

    [[nodiscard]] bool isChecked(const char* action);
    [[nodiscard]] bool isEnabled(const char* action);
    // The running commands, the outermost one first; empty at the command prompt.
    [[nodiscard]] QStringList running();
    [[nodiscard]] QString variable(const wchar_t* name);
    [[nodiscard]] QString title();
    [[nodiscard]] QString inputText();
    [[nodiscard]] QString screen() { return person_.screen(); }
    [[nodiscard]] std::size_t objects();
    [[nodiscard]] std::size_t selected();

private:
    Person& person_;
    QTabBar* tabs_;
};

// Tells a story at the main window of a new program.
void atTheWindow(ProgramOptions options, const std::function<void(AtTheWindow&)>& story);
void atTheWindow(const std::function<void(AtTheWindow&)>& story);

} // namespace quor::desktop::test
