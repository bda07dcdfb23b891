#include "host/ed/command_table.h"

#include <algorithm>
#include <utility>

namespace quor::ed {

void CommandTable::forget(Index& index, std::wstring_view name, const Command* command) {
    if (const auto found = index.find(name); found != index.end())
        std::erase(found->second, command);
}

// The command that was added last hides the ones before it.
const Command* CommandTable::latest(const Index& index, std::wstring_view name, bool hostOnly) {
    const auto found = index.find(name);
    if (found == index.end())
        return nullptr;
    const auto& commands = found->second;
    const auto last = std::find_if(commands.rbegin(), commands.rend(),
                                   [&](const Command* command) { return !hostOnly || command->isHost; });
    return last == commands.rend() ? nullptr : *last;
}

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
    byGlobalName_[added->globalName].push_back(added);
    byLocalName_[added->localName].push_back(added);
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
    return !alias.empty() && aliases_.emplace(alias, globalName).second;
}

const Command* CommandTable::find(const CommandWord& word) const {
    if (!word.globalOnly)
        if (const Command* local = latest(byLocalName_, word.name, word.hostOnly))
            return local;
    if (const Command* global = latest(byGlobalName_, word.name, word.hostOnly))
        return global;
    const auto alias = aliases_.find(word.name);
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
    std::vector<ZrString> result;
    for (const auto& [alias, name] : aliases_)
        if (equalFolded(name, globalName))
            result.push_back(foldCase(alias));
    return result;
}

} // namespace quor::ed
