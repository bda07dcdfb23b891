#include "host/commands/describe.h"

#include "host/ed/command_table.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/system_variables.h"
#include "host/sys/visible_text.h"
#include "host/texts/help.h"

#include <algorithm>

namespace quor::commands {

namespace {

ZrString summaryOf(const ed::Command& command) {
    if (!command.isHost)
        return command.help ? command.help() : ZrString();
    const auto pages = texts::helpPages();
    const auto page = std::ranges::find_if(pages, [&](const auto& p) { return command.globalName == p.command; });
    return page == pages.end() ? ZrString() : ZrString(page->summary.get());
}

ZrString firstLine(const ZrString& text) { return text.substr(0, text.find(L'\n')); }

} // namespace

ZrString describe(Session& session, std::wstring_view name) {
    const ed::CommandWord word = ed::parseCommandWord(name);
    if (const ed::Command* const command = session.commands().find(word)) {
        const ZrString summary = firstLine(summaryOf(*command));
        const bool isItsName = equalFolded(word.name, command->localName);
        if (isItsName)
            return summary;
        return summary.empty() ? command->localName : command->localName + L"  " + summary;
    }
    return visibleText(session.variables().text(word.name).value_or(ZrString()));
}

} // namespace quor::commands
