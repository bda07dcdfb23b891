#include "host/texts/help.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/upper_case.h"
#include "host/ed/command_table.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/system_variables.h"
#include "host/sys/text_width.h"
#include "host/texts/commands.h"
#include "host/texts/variables.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quor::commands {

namespace {

using texts::HelpPage;

// Every line of a text, moved to the right.
ZrString indented(ZrString text) {
    for (std::size_t at = 0; (at = text.find(L'\n', at)) != ZrString::npos; ++at)
        text.insert(at + 1, L"  ");
    return L"  " + text;
}

ZrString joinedInCapitals(const std::vector<ZrString>& words) {
    ZrString text;
    for (const ZrString& word : words)
        text += (text.empty() ? L"" : L", ") + upperCase(word);
    return text;
}

// A blank at the end, which is Enter, has to be seen.
ZrString exampleText(std::wstring_view example) {
    return fill(example.ends_with(L' ') ? texts::kHelpExampleWithBlank : texts::kHelpExample, ZrString(example));
}

void showPage(Session& session, const HelpPage& page) {
    ZrString text = ZrString(L"\n") + page.command + L"\n" + indented(page.summary.get()) + L"\n";
    if (*page.questions.get() != 0)
        text += indented(page.questions.get()) + L"\n";
    if (const std::vector<ZrString> aliases = session.commands().aliasesOf(page.command); !aliases.empty())
        text += indented(fill(texts::kHelpAliases, joinedInCapitals(aliases))) + L"\n";
    text += indented(exampleText(page.example)) + L"\n";
    printText(text);
}

// Empty for a command whose module gave none.
ZrString pageOf(const ed::Command& command) { return command.help ? command.help() : ZrString(); }

ZrString firstLine(const ZrString& page) { return page.substr(0, page.find(L'\n')); }

void showHostCommands() {
    int width = 0;
    for (const HelpPage& page : texts::helpPages())
        width = std::max(width, columnsOf(page.command));
    const Text* topic = nullptr;
    for (const HelpPage& page : texts::helpPages()) {
        if (topic != &page.topic)
            printText(ZrString(L"\n") + page.topic.get() + L"\n");
        topic = &page.topic;
        printText(L"\n  " + padRight(page.command, width) + L"  " + firstLine(page.summary.get()) + L"\n");
    }
}

// With the local name where there is one.
ZrString titleOf(const ed::Command& command) {
    const bool hasLocalName = command.localName != command.globalName;
    return hasLocalName ? command.globalName + L" (" + command.localName + L")" : command.globalName;
}

// The commands of modules, each with the first line of the page that its module gave for it.
void showModuleCommands(const ed::CommandTable& commands) {
    std::vector<std::pair<ZrString, ZrString>> rows;
    int width = 0;
    for (const ed::Command* command : commands.all()) {
        if (command->isHost)
            continue;
        const ZrString name = titleOf(*command);
        width = std::max(width, columnsOf(name));
        rows.emplace_back(name, firstLine(pageOf(*command)));
    }
    if (!rows.empty())
        printText(ZrString(L"\n") + texts::kHelpModuleCommands.get() + L"\n");
    for (const auto& [name, summary] : rows)
        printText(L"\n  " + (summary.empty() ? name : padRight(name, width) + L"  " + summary) + L"\n");
}

void showModuleCommand(const ed::Command& command) {
    const ZrString page = pageOf(command);
    if (page.empty())
        return say(texts::kHelpModulePage, command.globalName);
    printText(L"\n" + titleOf(command) + L"\n" + indented(page) + L"\n");
}

// What a page says in a line that begins with "NAME:"; empty when it has none.
ZrString lineAbout(const ZrString& page, const ZrString& name) {
    const ZrString start = L"\n" + upperCase(name) + L": ";
    const std::size_t at = page.find(start);
    if (at == ZrString::npos)
        return {};
    const std::size_t from = at + start.size();
    return page.substr(from, page.find(L'\n', from) - from);
}

// What is told of a variable: by the host, or for one of a module's by the page of a command of its.
ZrString noteOf(const ZrString& name, const ed::CommandTable& commands) {
    const auto* note =
        std::ranges::find_if(texts::variableNotes, [&](const auto& row) { return equalFolded(row.name, name); });
    if (note != std::end(texts::variableNotes))
        return note->note.get();
    for (const ed::Command* command : commands.all())
        if (ZrString line = lineAbout(pageOf(*command), name); !line.empty())
            return line;
    return {};
}

void showVariable(Session& session, const ZrString& name) {
    say(session.variables().isReadOnly(name) ? texts::kHelpReadOnlyVariable : texts::kHelpVariable, name);
    if (const ZrString note = noteOf(name, session.commands()); !note.empty())
        printText(L"\n" + indented(note) + L"\n");
}

int showCommand(Session& session, const ZrString& name) {
    const ed::Command* command = session.commands().find(ed::parseCommandWord(name));
    if (command == nullptr && session.variables().has(name)) {
        showVariable(session, name);
        return RTNORM;
    }
    if (command == nullptr)
        return failWith(texts::kNoHelp, shortened(name));
    if (!command->isHost) {
        showModuleCommand(*command);
        return RTNORM;
    }
    const auto pages = texts::helpPages();
    const auto page = std::ranges::find_if(pages, [&](const auto& p) { return command->globalName == p.command; });
    if (page == pages.end())
        return failWith(texts::kNoHelp, shortened(name));
    showPage(session, *page);
    return RTNORM;
}

} // namespace

int help(Session& session) {
    const std::optional<ZrString> name = askWord(texts::kAskHelp.get());
    if (!name)
        return RTCAN;
    if (!name->empty())
        return showCommand(session, *name);
    showHostCommands();
    showModuleCommands(session.commands());
    say(texts::kHelpHow);
    return RTNORM;
}

} // namespace quor::commands
