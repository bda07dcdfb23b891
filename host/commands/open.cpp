#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/session.h"
#include "host/texts/files.h"
#include "sdk/rx/command.h"

namespace quor::commands {

namespace {

// Enter opens the file chooser, except where nobody is there to choose.
int askAndOpen(Session& session, const Text& prompt, const Text& caption, bool recover) {
    const std::optional<ZrString> answer = askLine(prompt.get());
    if (!answer)
        return RTCAN;
    if (!answer->empty())
        return openPath(session, pathFromText(*answer), recover);
    if (RxCommand::isCalledByCommand())
        return RTCAN;
    const FileQuestion question{caption.get(), texts::kDxfFiles.get(), L"*.dxf", false};
    const std::optional<ZrString> chosen = session.front().chooseFile(question);
    if (!chosen || chosen->empty())
        return RTCAN;
    return openPath(session, pathFromText(*chosen), recover);
}

} // namespace

int newDrawing(Session& session) {
    const Document& document = session.documents().newDocument();
    sayShown(texts::kMadeNew, document.fileName());
    return RTNORM;
}

int openDrawing(Session& session) { return askAndOpen(session, texts::kAskOpenPath, texts::kChooseOpen, false); }

int recoverDrawing(Session& session) {
    return askAndOpen(session, texts::kAskRecoverPath, texts::kChooseRecover, true);
}

} // namespace quor::commands
