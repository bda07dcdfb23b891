// IESINFO: what a photometric web file holds, or why it is none that a light takes.
#include "host/texts/ies_info.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/web_listing.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/sys/utf8.h"
#include "host/ui/file_dialog.h"
#include "sdk/ed/find_file.h"
#include "sdk/rx/command.h"

namespace quor::commands {

namespace {

// Enter opens the file chooser, except where nobody is there to choose.
std::optional<ZrString> askWebPath(Session& session) {
    std::optional<ZrString> answer = askLine(texts::kAskWebPath.get());
    if (!answer || !answer->empty() || RxCommand::isCalledByCommand())
        return answer;
    FileQuestion question;
    question.caption = texts::kChooseWeb.get();
    question.filters = {{texts::kWebFiles.get(), L"*.ies"}};
    question.previews = true;
    return ui::chooseFile(session, question);
}

} // namespace

int iesInfo(Session& session) {
    const std::optional<ZrString> name = askWebPath(session);
    if (!name || name->empty())
        return RTCAN;
    ZrString found;
    if (zredFindFile(textOf(pathFromText(*name)).c_str(), found) != RTNORM)
        return failWith(texts::kNoSuchWeb, *name);
    const auto file = ies::loadWeb(toUtf8(found));
    if (!file.ok()) {
        printText(L"\n" + ies::describe(file.error(), found) + L"\n");
        return RTERROR;
    }
    Listing listing;
    listing.heading(found);
    listWebFile(**file, listing);
    printText(listing.text());
    return RTNORM;
}

} // namespace quor::commands
