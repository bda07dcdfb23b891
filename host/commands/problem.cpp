#include "host/commands/problem.h"

#include "host/ed/command_processor.h"
#include "host/session.h"
#include "sdk/rx/command.h"

namespace quor::commands {

namespace {

// Without the line breaks around it.
std::wstring_view sentence(std::wstring_view message) {
    const std::size_t first = message.find_first_not_of(L'\n');
    return first == std::wstring_view::npos ? L"" : message.substr(first, message.find_last_not_of(L'\n') + 1 - first);
}

} // namespace

// Drawings that are opened at the start of the program are opened by no command.
int failBeforePerson(const ZrString& message) {
    printText(message);
    Session& session = Session::current();
    if (session.processor().isRunning() && !RxCommand::isCalledByCommand())
        session.front().showProblem(sentence(message));
    return RTERROR;
}

} // namespace quor::commands
