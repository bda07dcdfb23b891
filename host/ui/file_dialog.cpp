#include "host/ui/file_dialog.h"

#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/ui/file_dialog_text.h"

namespace quor::ui {

namespace {

FileAnswer show(Session& session, const FileQuestion& question) {
    if (!session.input().hasAnswer())
        return session.front().chooseFile(question);
    return askFile(question, [&](const Question& asked) { return session.input().ask(asked); });
}

} // namespace

FileAnswer chooseFileFully(Session& session, const FileQuestion& question) {
    FileAnswer answer = show(session, question);
    if (answer.inputEnded)
        session.processor().reportEndOfInput();
    else if (!answer.file)
        session.processor().reportEscape();
    return answer;
}

std::optional<ZrString> chooseFile(Session& session, const FileQuestion& question) {
    return chooseFileFully(session, question).file;
}

} // namespace quor::ui
