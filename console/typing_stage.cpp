#include "console/typing_stage.h"

#include "console/exit_status.h"
#include "console/script_stage.h"
#include "console/signals.h"
#include "console/terminal_reader.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/completion_source.h"
#include "host/ed/input_stack.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"
#include "host/texts/console.h"

#include <algorithm>
#include <cerrno>

namespace quor::console {

namespace {

namespace words = texts::console;

// Asks for one command and runs it with all that it starts; nothing when the input has ended.
std::optional<int> typeOne(const TypingRoom& room) {
    if (!room.session.processor().step())
        return std::nullopt;
    if (!room.session.input().hasProgramInput())
        return kSuccess;
    return runWaiting({room.session, room.front, room.output, room.options.keepGoing, room.report});
}

int pipeStatus(const Output& output, int worst) {
    if (signals::interrupted())
        return kInterrupted;
    return output.error() == EPIPE ? kReaderGone : worst;
}

int typeThroughPipe(const TypingRoom& room) {
    PipeReader reader(room.streams.in, room.output);
    room.front.setReader(&reader);
    int worst = kSuccess;
    while (!room.session.processor().quitRequested()) {
        const std::optional<int> status = typeOne(room);
        if (!status)
            break;
        worst = std::max(worst, *status);
    }
    room.front.setReader(nullptr);
    room.output.flush();
    return pipeStatus(room.output, worst);
}

void warnOfTheEnd(Session& session) {
    if (const Document* const edited = session.documents().firstWithEditing())
        say(words::kUnsavedEndEditing, visibleText(edited->drawing().refEdit().blockName()));
    else
        say(words::kUnsavedEnd);
}

// Ctrl+D with unsaved changes warns once; pressed again at once it ends the session. With -o the end saves.
int typeOnTerminal(const TypingRoom& room) {
    TerminalReader reader(room.output, ed::History(ed::History::defaultFile()),
                          [&](const Question& question) { return ed::completionSource(room.session, question); });
    room.front.setReader(&reader);
    say(words::kBanner, fromUtf8(QUOR_VERSION));
    bool warned = false;
    while (!room.session.processor().quitRequested()) {
        if (typeOne(room)) {
            signals::forgetInterrupt();
            warned = false;
            continue;
        }
        if (warned || !room.options.output.empty() || !room.session.documents().hasUnsavedChanges())
            break;
        warnOfTheEnd(room.session);
        warned = true;
    }
    room.front.setReader(nullptr);
    return kSuccess;
}

} // namespace

int typeCommands(const TypingRoom& room) {
    const bool edits = room.streams.editsLines && !room.options.quiet;
    return edits ? typeOnTerminal(room) : typeThroughPipe(room);
}

} // namespace quor::console
