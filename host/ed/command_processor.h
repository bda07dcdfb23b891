// Runs commands: finds them, opens and closes their undo group, acts on their verdict, tells the listeners.
#pragma once

#include "host/ed/command_table.h"
#include "sdk/sys/string.h"

#include <functional>
#include <optional>
#include <vector>

namespace quor {
class Session;
}

namespace quor::ed {

// How a command ended.
struct Verdict {
    enum class Kind {
        Done,      // RTNORM, or any code that the command always gives
        Cancelled, // by Esc
        Failed,    // RTERROR and the like, or an exception
        Unknown,   // no such command
        Refused,   // not allowed now (no drawing, not transparent, …)
        EndOfInput // the answers ran out in the middle of it
    };
    Kind kind = Kind::Done;
    int result = 0;
    ZrString command; // the global name, or what was typed
    [[nodiscard]] bool isFailure() const { return kind != Kind::Done && kind != Kind::Cancelled; }
};

class CommandProcessor {
public:
    explicit CommandProcessor(Session& session) : session_(session) {}

    // Asks for a command at the command prompt and runs it. Nothing when the input has ended.
    std::optional<Verdict> step();
    // Runs one command by its typed word; as a program when `byProgram`.
    Verdict run(const ZrString& word, bool byProgram);

    // The command library tells the result of the command object that it ran.
    void reportResult(int result) { reportedResult_ = result; }
    // A command's own message that ends it as failed; printed by the caller.
    void reportFailure() { reportedFailure_ = true; }
    // A command that was cut off by the end of its input.
    void reportEndOfInput() { reportedEnd_ = true; }
    // Ends the program's loop (QUIT).
    void requestQuit() { quit_ = true; }
    [[nodiscard]] bool quitRequested() const { return quit_; }

    // Whether the running command (the innermost) was started by a program.
    [[nodiscard]] bool isCalledByProgram() const;
    // Global names of the running commands, outermost first.
    [[nodiscard]] const std::vector<ZrString>& running() const { return running_; }
    [[nodiscard]] const ZrString& lastCommand() const { return last_; }

private:
    Session& session_;
    std::vector<ZrString> running_;
    std::vector<bool> byProgram_;
    ZrString last_;
    std::optional<int> reportedResult_;
    bool reportedFailure_ = false;
    bool reportedEnd_ = false;
    bool quit_ = false;
};

} // namespace quor::ed
