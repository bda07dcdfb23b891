#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/session.h"
#include "host/sys/utf8.h"
#include "host/texts/files.h"
#include "host/ui/file_dialog.h"
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
    FileQuestion question;
    question.caption = caption.get();
    question.filters = {{texts::kDxfFiles.get(), L"*.dxf"}};
    const std::optional<ZrString> chosen = ui::chooseFile(session, question);
    return chosen ? openPath(session, toUtf8(*chosen), recover) : RTCAN;
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
