#include "host/commands/ask_file.h"

#include "host/commands/ask.h"
#include "host/ui/file_dialog.h"
#include "sdk/rx/command.h"

namespace quor::commands {

std::optional<ZrString> askFile(Session& session, const Text& prompt, const FileQuestion& chooser) {
    std::optional<ZrString> answer = askLine(prompt.get());
    if (!answer || !answer->empty())
        return answer;
    return RxCommand::isCalledByCommand() ? std::nullopt : ui::chooseFile(session, chooser);
}

} // namespace quor::commands
