#include "host/ed/command_table.h"

#include "host/sys/case_fold.h"

#include <algorithm>
#include <utility>

namespace quor::ed {

namespace {

using Index = std::multimap<ZrString, const Command*>;

void forget(Index& index, const ZrString& name, const Command* command) {
    const auto [first, last] = index.equal_range(foldCase(name));
    for (auto at = first; at != last; ++at)
        if (at->second == command) {
            index.erase(at);
            return;
        }
}

// The command that was added last hides the ones before it.
const Command* latest(const Index& index, const ZrString& folded, bool hostOnly) {
    const auto [first, last] = index.equal_range(folded);
    const Command* found = nullptr;
    for (auto at = first; at != last; ++at)
        if (!hostOnly || at->second->isHost)
            found = at->second;
    return found;
}

} // namespace

CommandWord parseCommandWord(std::wstring_view typed) {
    CommandWord word;
    for (; !typed.empty(); typed.remove_prefix(1)) {
        bool* const mark = typed.front() == L'\''  ? &word.transparent
                           : typed.front() == L'.' ? &word.hostOnly
                           : typed.front() == L'_' ? &word.globalOnly
                                                   : nullptr;
        if (mark == nullptr)
            break;
        *mark = true;
    }
    word.name = typed;
    return word;
}

bool CommandTable::add(Command command) {
    const bool taken = std::any_of(commands_.begin(), commands_.end(), [&](const auto& known) {
        return known->group == command.group && equalFolded(known->globalName, command.globalName);
    });
    if (taken || command.globalName.empty())
        return false;
    if (command.localName.empty())
        command.localName = command.globalName;
    const Command* added = commands_.emplace_back(std::make_unique<Command>(std::move(command))).get();
    byGlobalName_.emplace(foldCase(added->globalName), added);
    byLocalName_.emplace(foldCase(added->localName), added);
    return true;
}

bool CommandTable::setHelp(const ZrString& group, const ZrString& globalName, std::function<ZrString()> page) {
    for (const std::unique_ptr<Command>& command : commands_)
        if (command->group == group && equalFolded(command->globalName, globalName)) {
            command->help = std::move(page);
            return true;
        }
    return false;
}

bool CommandTable::remove(const ZrString& group, const ZrString& globalName) {
    const auto at = std::find_if(commands_.begin(), commands_.end(), [&](const auto& known) {
        return known->group == group && equalFolded(known->globalName, globalName);
    });
    if (at == commands_.end())
        return false;
    forget(byGlobalName_, (*at)->globalName, at->get());
    forget(byLocalName_, (*at)->localName, at->get());
    commands_.erase(at);
    return true;
}

void CommandTable::removeGroup(const ZrString& group) {
    std::vector<ZrString> names;
    for (const auto& command : commands_)
        if (command->group == group)
            names.push_back(command->globalName);
    for (const ZrString& name : names)
        remove(group, name);
}

bool CommandTable::addAlias(const ZrString& alias, const ZrString& globalName) {
    return !alias.empty() && aliases_.emplace(foldCase(alias), foldCase(globalName)).second;
}

const Command* CommandTable::find(const CommandWord& word) const {
    const ZrString folded = foldCase(word.name);
    if (!word.globalOnly)
        if (const Command* local = latest(byLocalName_, folded, word.hostOnly))
            return local;
    if (const Command* global = latest(byGlobalName_, folded, word.hostOnly))
        return global;
    const auto alias = aliases_.find(folded);
    return alias == aliases_.end() ? nullptr : latest(byGlobalName_, alias->second, word.hostOnly);
}

std::vector<const Command*> CommandTable::all() const {
    std::vector<const Command*> result;
    for (const auto& command : commands_)
        result.push_back(command.get());
    std::sort(result.begin(), result.end(),
              [](const Command* a, const Command* b) { return compareFolded(a->globalName, b->globalName) < 0; });
    return result;
}

std::vector<ZrString> CommandTable::aliasesOf(const ZrString& globalName) const {
    const ZrString folded = foldCase(globalName);
    std::vector<ZrString> result;
    for (const auto& [alias, name] : aliases_)
        if (name == folded)
            result.push_back(foldCase(alias));
    return result;
}

} // namespace quor::ed
