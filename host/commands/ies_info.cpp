// IESINFO: what a photometric web file holds, or why it is none that a light takes.
#include "host/texts/ies_info.h"
#include "host/commands/ask.h"
#include "host/commands/ask_file.h"
#include "host/commands/commands.h"
#include "host/commands/web_listing.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/sys/utf8.h"
#include "sdk/ed/find_file.h"

namespace quor::commands {

int iesInfo(Session& session) {
    FileQuestion chooser;
    chooser.caption = texts::kChooseWeb.get();
    chooser.filters = {{texts::kWebFiles.get(), L"*.ies"}};
    chooser.previews = true;
    const std::optional<ZrString> name = askFile(session, texts::kAskWebPath, chooser);
    if (!name)
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
