// Where answers come from: scripts, macros and programs on top of each other, the person at the bottom.
#pragma once

#include "host/front.h"

#include <deque>
#include <filesystem>
#include <memory>
#include <vector>

namespace quor::ed {

// Where in a script an answer stands.
struct Origin {
    std::shared_ptr<const ZrString> name; // the script's file name; null for what has none
    std::size_t line = 0;
    // "lights.scr, line 7" in the host's language; empty without a name.
    [[nodiscard]] ZrString text() const;
};

// A source of answers above the front end.
class InputSource {
public:
    virtual ~InputSource() = default;
    // The next answer, or nothing when the source has none left.
    virtual std::optional<Answer> next(const Question& question) = 0;
    // Whether it has none left.
    [[nodiscard]] virtual bool atEnd() = 0;
    // Where the last answer stood.
    [[nodiscard]] virtual Origin origin() const { return {}; }
    // The script file that it reads; empty when it reads none.
    [[nodiscard]] virtual const std::filesystem::path& file() const;
    // Whether what it starts counts as started by a program (all but the person's own typing).
    [[nodiscard]] virtual bool isProgram() const { return true; }
    // Whether its end in the middle of a command is Esc for that command; else whoever is below goes on answering.
    [[nodiscard]] virtual bool endsCommand() const { return true; }
    // Whether its answers are shown as if they had been typed.
    [[nodiscard]] virtual bool isEchoed() const { return true; }
    // What the person is told where something went wrong.
    [[nodiscard]] ZrString where() const { return origin().text(); }
};

class InputStack {
public:
    explicit InputStack(FrontEnd& front) : front_(front) {}

    void push(std::unique_ptr<InputSource> source);
    // Puts a script on top of those that are not at their end: one that is done makes room, so that a script whose last
    // command starts it anew runs on and on. In words for a person why not: the same file has lines left, or too many
    // scripts are waiting for each other.
    [[nodiscard]] std::optional<ZrString> pushScript(std::unique_ptr<InputSource> script);
    static constexpr std::size_t kMostScripts = 100;
    // Puts a macro behind those that wait for the next command prompt.
    void queueMacro(std::wstring_view macro);
    // Drops every source, waiting macros and the rest of a typed line (a script that stops).
    void clear();
    // What a person typed behind an answer, for the questions that follow.
    void typeAhead(std::wstring_view rest);
    // Drops the rest of a line that a person typed.
    void dropTypedAhead() { typedLine_.reset(); }
    [[nodiscard]] bool empty() const { return sources_.empty() && macros_.empty(); }
    // The source that gives the next answer, or null for the person.
    [[nodiscard]] const InputSource* top() const;

    // For command prompts: lets go of sources that have ended and brings waiting macros up. Whether a program has more.
    bool hasProgramInput();
    // Whether the next answer comes from a source or is typed ahead, so that nobody is to be asked.
    [[nodiscard]] bool hasAnswer();

    // Asks: the topmost source that has an answer gives it (and it is echoed), else the front end. A source that ends
    // while a command is asking answers the end of input once; at the command prompt the next one below goes on. A
    // typed line with several answers is cut at its blanks; the later ones wait for the questions that follow.
    Answer ask(const Question& question);
    // As ask(), with the points under the cursor told when the front end is the one that answers.
    Answer drag(const Question& question, const std::function<void(const ZrGePoint3d&)>& sample);

    // Whether the last answer came from a program.
    [[nodiscard]] bool lastWasProgram() const { return lastWasProgram_; }
    // Where the last answer at a command prompt stood.
    [[nodiscard]] const Origin& commandOrigin() const { return commandOrigin_; }

private:
    void dropEnded();
    [[nodiscard]] std::optional<Answer> fromSources(const Question& question);
    [[nodiscard]] Answer take(InputSource& source, const Question& question, Answer answer);
    template <class Ask>
    [[nodiscard]] Answer fromPerson(const Question& question, const Ask& ask);
    [[nodiscard]] Answer cutTyped(const Question& question, Answer answer);

    FrontEnd& front_;
    std::vector<std::unique_ptr<InputSource>> sources_;
    std::deque<std::unique_ptr<InputSource>> macros_;
    std::unique_ptr<InputSource> typedLine_;
    Origin commandOrigin_;
    bool lastWasProgram_ = false;
    bool isBroken_ = false; // the front end's input broke
};

} // namespace quor::ed
