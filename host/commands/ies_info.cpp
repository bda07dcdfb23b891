// IESINFO: what a photometric web file holds, or why it is none that a light takes.
#include "host/texts/ies_info.h"
#include "host/commands/ask.h"
#include "host/commands/ask_file.h"
#include "host/commands/commands.h"
#include "host/commands/web_listing.h"
#include "host/ed/support_files.h"
#include "host/session.h"
#include "host/sys/path_text.h"

namespace quor::commands {

int iesInfo(Session& session) {
    FileQuestion chooser;
    chooser.caption = texts::kChooseWeb.get();
    chooser.filters = {{texts::kWebFiles.get(), L"*.ies"}};
    chooser.previews = true;
    const std::optional<ZrString> name = askFile(session, texts::kAskWebPath, chooser);
    if (!name)
        return RTCAN;
    const auto found = ed::findSupportName(session, textOf(pathFromText(*name)));
    if (!found)
        return failWith(texts::kNoSuchWeb, *name);
    const ies::LoadedWeb file = ies::loadWeb(*found);
    if (!file.ok()) {
        printText(L"\n" + ies::describe(file.error(), textOf(*found)) + L"\n");
        return RTERROR;
    }
    Listing listing;
    listing.heading(textOf(*found));
    listWebFile(**file, listing);
    printText(listing.text());
    return RTNORM;
}

} // namespace quor::commands
