#include "host/commands/ask_file.h"

#include "host/commands/ask.h"
#include "host/ed/input_stack.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/ui/file_dialog.h"
#include "sdk/rx/command.h"

namespace quor::commands {

bool asksInDialog(Session& session) {
    return session.front().hasDialogs() && session.variables().number(L"FILEDIA", 1) != 0 &&
           !RxCommand::isCalledByCommand() && !session.input().hasAnswer();
}

std::optional<ZrString> askFile(Session& session, const Text& prompt, const FileQuestion& chooser) {
    if (asksInDialog(session))
        return ui::chooseFile(session, chooser);
    std::optional<ZrString> answer = askLine(prompt.get());
    if (!answer || !answer->empty())
        return answer;
    return RxCommand::isCalledByCommand() ? std::nullopt : ui::chooseFile(session, chooser);
}

} // namespace quor::commands
