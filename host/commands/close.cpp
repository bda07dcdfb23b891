#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/db/ref_edit.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/texts/files.h"
#include "host/texts/ref_edit.h"
#include "sdk/rx/command.h"

namespace quor::commands {

int closeDrawing(Session& session) {
    Document& document = *session.documents().current();
    const ZrString name = shortName(document);
    if (document.isModified()) {
        if (const db::RefEdit& editing = document.drawing().refEdit(); editing.isActive())
            sayShown(texts::kEditingGoesOn, editing.blockName());
        const std::optional<bool> save = askYesNo(fillShown(texts::kAskSaveChanges, name), true);
        if (!save)
            return RTCAN;
        if (const int result = *save ? saveInPlace(session, document) : RTNORM; result != RTNORM)
            return result;
    }
    session.documents().close(document);
    sayShown(texts::kClosed, name);
    return RTNORM;
}

// A program that quits has decided what to save; a person is asked about each drawing that would lose changes.
int quit(Session& session) {
    for (const auto& document : session.documents().all()) {
        if (!document->isModified() || RxCommand::isCalledByCommand())
            continue;
        const ZrString name = shortName(*document);
        const std::optional<bool> discard = askYesNo(fillShown(texts::kAskDiscard, name), false);
        if (!discard)
            return RTCAN;
        if (!*discard)
            return failWith(document->drawing().refEdit().isActive() ? texts::kNotQuitEditing : texts::kNotQuit, name);
    }
    session.processor().requestQuit();
    return RTNORM;
}

} // namespace quor::commands
