// Where answers come from: scripts, macros and programs on top of each other, the person at the bottom.
#pragma once

#include "host/front.h"

#include <memory>
#include <vector>

namespace quor::ed {

// A source of answers above the front end.
class InputSource {
public:
    virtual ~InputSource() = default;
    // The next answer, or nothing when the source has none left.
    virtual std::optional<Answer> next(const Question& question) = 0;
    // What the person is told where something went wrong: file name and line; empty for a macro.
    [[nodiscard]] virtual ZrString where() const { return {}; }
    // Whether what it starts counts as started by a program (all but the person's own typing).
    [[nodiscard]] virtual bool isProgram() const { return true; }
};

class InputStack {
public:
    explicit InputStack(FrontEnd& front) : front_(front) {}

    void push(std::unique_ptr<InputSource> source);
    // Drops every source (a script that stops).
    void clear();
    [[nodiscard]] bool empty() const { return sources_.empty(); }
    // The source that gives the next answer, or null for the person.
    [[nodiscard]] const InputSource* top() const;

    // Asks: the topmost source that has an answer gives it (and it is echoed), else the front end. A source that ends while
    // a command is asking answers Esc once (`atCommandPrompt` false); at the command prompt the next one below goes on.
    Answer ask(const Question& question);
    // Whether the last answer came from a program.
    [[nodiscard]] bool lastWasProgram() const { return lastWasProgram_; }

private:
    FrontEnd& front_;
    std::vector<std::unique_ptr<InputSource>> sources_;
    bool lastWasProgram_ = false;
};

} // namespace quor::ed
