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

namespace {

// What is to become of its changes: a program with windows asks in one of them.
std::optional<bool> askWhetherToSave(Session& session, const ZrString& name) {
    const std::optional<SaveChoice> choice =
        RxCommand::isCalledByCommand() ? std::nullopt : session.front().askToSave(name);
    if (!choice)
        return askYesNo(fillShown(texts::kAskSaveChanges, name), true);
    return *choice == SaveChoice::Cancel ? std::nullopt : std::optional(*choice == SaveChoice::Save);
}

// Whether the drawing may go with the program. RTNORM, RTCAN for Esc, RTERROR after a message.
int leaveDrawing(Session& session, Document& document) {
    const ZrString name = shortName(document);
    if (const std::optional<SaveChoice> choice = session.front().askToSave(name)) {
        if (*choice == SaveChoice::Save)
            return saveInPlace(session, document);
        return *choice == SaveChoice::Discard ? RTNORM : RTCAN;
    }
    const std::optional<bool> discard = askYesNo(fillShown(texts::kAskDiscard, name), false);
    if (!discard)
        return RTCAN;
    if (!*discard)
        return failWith(document.drawing().refEdit().isActive() ? texts::kNotQuitEditing : texts::kNotQuit, name);
    return RTNORM;
}

} // namespace

int closeDrawing(Session& session) {
    Document& document = *session.documents().current();
    const ZrString name = shortName(document);
    if (document.isModified()) {
        if (const db::RefEdit& editing = document.drawing().refEdit(); editing.isActive())
            sayShown(texts::kEditingGoesOn, editing.blockName());
        const std::optional<bool> save = askWhetherToSave(session, name);
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
        if (const int result = leaveDrawing(session, *document); result != RTNORM)
            return result;
    }
    session.processor().requestQuit();
    return RTNORM;
}

} // namespace quor::commands
