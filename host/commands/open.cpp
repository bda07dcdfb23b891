#include "host/commands/ask.h"
#include "host/commands/ask_file.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/session.h"
#include "host/texts/files.h"

namespace quor::commands {

namespace {

int askAndOpen(Session& session, const Text& prompt, const Text& caption, bool recover) {
    FileQuestion chooser;
    chooser.caption = caption.get();
    chooser.filters = {{texts::kDxfFiles.get(), L"*.dxf"}};
    const std::optional<ZrString> file = askFile(session, prompt, chooser);
    return file ? openPath(session, pathFromText(*file), recover) : RTCAN;
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
