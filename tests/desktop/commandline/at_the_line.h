// The command line of a running program, as the person who sits at it sees and uses it.
#pragma once

#include "desktop/commandline/candidate_list.h"
#include "desktop/commandline/command_line.h"
#include "desktop/commandline/completer.h"
#include "desktop/commandline/prompt_view.h"
#include "desktop/commandline/text_window.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "host/ed/pick.h"
#include "host/session.h"
#include "tests/desktop/support/person.h"

#include <QTest>

namespace quor::desktop::test {

class AtTheLine {
public:
    explicit AtTheLine(Person& person) : person_(person) {
        line_ = person.sees([&] { return person.program().window().findChild<CommandLine*>("commandLine"); });
    }

    // Characters and keys, in the widget that has the keyboard.
    void writes(const QString& text) {
        person_.does([=] { QTest::keyClicks(QApplication::focusWidget(), text); });
    }
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { person_.presses(key, modifiers); }
    void types(const QString& line) { person_.types(line); }
    // Clicks an option or the default of the prompt, by its text.
    void clicks(const QString& part) {
        person_.does([this, part] {
            const PromptView& prompt = line_->prompt();
            QTest::mouseClick(&line_->prompt(), Qt::LeftButton, {}, prompt.rectOf(partWith(part)).center());
        });
    }
    // The first of the prompt's parts with that text.
    [[nodiscard]] std::size_t partWith(const QString& text) const {
        const std::vector<ed::PromptPart>& parts = line_->prompt().parts();
        std::size_t part = 0;
        while (part < parts.size() && toQt(parts[part].text) != text)
            ++part;
        return part;
    }

    [[nodiscard]] QString prompt() {
        return person_.sees([&] { return line_->prompt().text(); });
    }
    [[nodiscard]] QString text() {
        return person_.sees([&] { return line_->input().text(); });
    }
    [[nodiscard]] QStringList offered() {
        return person_.sees([&] {
            QStringList texts;
            for (const CandidateList::Row& row : line_->completer().list().rows())
                texts.push_back(row.text);
            return texts;
        });
    }
    // What the history says.
    [[nodiscard]] QString transcript() {
        return person_.sees([&] { return line_->transcript().text(); });
    }
    // How many the drawing has.
    [[nodiscard]] std::size_t objects() {
        return person_.sees(
            [&] { return ed::entitiesOfCurrentSpace(*person_.program().session().documents().current()).size(); });
    }
    [[nodiscard]] CommandLine& line() { return *line_; }
    [[nodiscard]] Person& person() { return person_; }

private:
    Person& person_;
    CommandLine* line_ = nullptr;
};

// Tells a story at the command line of a new program.
inline void atTheLine(const std::function<void(AtTheLine&)>& story) {
    withProgram(usualOptions(), [&](Person& person) {
        AtTheLine line(person);
        story(line);
    });
}

} // namespace quor::desktop::test
