#include "host/ed/recent_commands.h"

namespace quor::ed {

RecentCommands::RecentCommands(History file) : file_(std::move(file)) {
    for (const ZrString& name : file_.load())
        putFirst(name);
}

std::filesystem::path RecentCommands::defaultFile() {
    const std::filesystem::path lines = History::defaultFile();
    return lines.empty() ? lines : lines.parent_path() / "commands";
}

void RecentCommands::add(const ZrString& globalName) {
    if (!names_.empty() && names_.front() == globalName)
        return;
    putFirst(globalName);
    file_.add(globalName);
}

void RecentCommands::putFirst(const ZrString& name) {
    std::erase(names_, name);
    names_.insert(names_.begin(), name);
    if (names_.size() > kMost)
        names_.pop_back();
}

} // namespace quor::ed
