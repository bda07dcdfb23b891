// Runs commands: finds them, opens and closes their undo group, acts on their verdict, tells the listeners.
#pragma once

#include "host/ed/command_table.h"
#include "host/ed/input_stack.h"
#include "sdk/sys/string.h"

#include <functional>
#include <optional>
#include <vector>

namespace quor {
class Document;
class Session;
} // namespace quor

namespace quor::ed {

// How a command ended.
struct Verdict {
    enum class Kind {
        Done,      // RTNORM; RTCAN of a module without Esc; also Esc and Enter at the command prompt
        Cancelled, // by Esc
        Failed,    // RTERROR and the like, or an exception
        Unknown,   // no such command
        Refused,   // not allowed now (no drawing, not transparent, …)
        EndOfInput // the answers ran out in the middle of it
    };
    Kind kind = Kind::Done;
    int result = 0;
    ZrString command; // the global name, or what was typed; empty when no command ran
    [[nodiscard]] bool isFailure() const { return kind != Kind::Done && kind != Kind::Cancelled; }
};

// Protocol of an outermost command: 1 listeners are told that it starts, 2 its undo group is opened, 3 it runs, 4 the
// group is closed, or taken back when the command threw, 5 the pick-first selection is cleared unless the command set
// it, 6 listeners are told that it ended. Commands inside another one belong to the outermost one's group.
class CommandProcessor {
public:
    explicit CommandProcessor(Session& session) : session_(session) {}

    // Asks for a command at the command prompt and runs it. Nothing when the input has ended.
    std::optional<Verdict> step();
    // Runs one command by its typed word; as a program when `byProgram`. The name of a system variable runs SETVAR.
    Verdict run(const ZrString& word, bool byProgram);
    // What was typed at the command prompt is no text.
    Verdict refuseBytes(const ZrString& typed);
    // Runs "'NAME", which was typed at a question of the running command.
    Verdict runTransparent(std::wstring_view typed);

    // The command library tells the result of the command object that it ran.
    void reportResult(int result);
    // The running command broke and has said so: it ends as failed, and what it did is taken back.
    void reportFailure();
    // The running command was cut off by the end of its input.
    void reportEndOfInput();
    // A question of the running command was answered with Esc.
    void reportEscape();
    // Ends the program's loop (QUIT).
    void requestQuit() { quit_ = true; }
    void withdrawQuit() { quit_ = false; }
    [[nodiscard]] bool quitRequested() const { return quit_; }

    // Whether the running command (the innermost) was started by a program.
    [[nodiscard]] bool isCalledByProgram() const { return !frames_.empty() && frames_.back().byProgram; }
    [[nodiscard]] bool isRunning() const { return !frames_.empty(); }
    // Global names of the running commands, outermost first.
    [[nodiscard]] std::vector<ZrString> running() const;
    [[nodiscard]] const ZrString& lastCommand() const { return last_; }

private:
    struct Frame {
        ZrString name;
        bool isHost = true;
        bool byProgram = false;
        bool failed = false;
        bool ended = false;
        bool escaped = false;
        std::optional<int> result;
    };
    // What a typed word means: a command, and for a system variable the answer that SETVAR gets.
    struct Call {
        const Command* command = nullptr;
        std::optional<ZrString> answer;
    };

    [[nodiscard]] Call resolve(const CommandWord& word) const;
    Verdict runCall(const Call& call, const ZrString& typed, bool byProgram, bool transparent);
    Verdict execute(const Command& command, bool byProgram, bool transparent);
    Verdict runOutermost(const Command& command);
    Verdict runInner(const Command& command);
    [[nodiscard]] static Verdict judge(Frame frame);
    [[nodiscard]] Document* stillOpen(Document* document) const;

    Session& session_;
    std::vector<Frame> frames_;
    ZrString last_;
    bool quit_ = false;
};

} // namespace quor::ed
