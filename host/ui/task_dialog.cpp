#include "sdk/ui/task_dialog.h"

#include "host/ed/command_processor.h"
#include "host/ed/input_stack.h"
#include "host/session.h"
#include "host/ui/task_dialog_text.h"
#include "sdk/ed/print.h"

#include <algorithm>

namespace {

// An answer that is there already is used as on a console, so that a script never waits for a person.
quor::TaskDialogAnswer show(quor::Session& session, const CZrUiTaskDialog& dialog) {
    if (!session.input().hasAnswer())
        return session.front().showTaskDialog(dialog);
    return quor::ui::askTaskDialog(dialog, quor::printText, [&](const quor::Question& question) {
        return quor::ui::askPersonOrScript(session.input(), question);
    });
}

} // namespace

void CZrUiTaskDialog::SetCommandControlExtend(int id, const ZrString& explanation) {
    const auto command =
        std::find_if(commands_.begin(), commands_.end(), [id](const Command& c) { return c.id == id; });
    if (command != commands_.end())
        command->explanation = explanation;
}

int CZrUiTaskDialog::DoModal() {
    checked_ = false;
    if (!quor::Session::exists())
        return kTaskDialogCancelled;
    quor::Session& session = quor::Session::current();
    quor::TaskDialogAnswer answer = show(session, *this);
    while (!answer.command && !answer.inputEnded && !isCancellable())
        answer = show(session, *this);
    if (answer.inputEnded)
        session.processor().reportEndOfInput();
    else if (!answer.command)
        session.processor().reportEscape();
    checked_ = answer.checked;
    return answer.command.value_or(kTaskDialogCancelled);
}
