// The commands that a person ran last, kept from session to session.
#pragma once

#include "host/ed/history.h"

namespace quor::ed {

class RecentCommands {
public:
    static constexpr std::size_t kMost = 10;

    explicit RecentCommands(History file);
    // Beside the history of lines; empty when there is no place for either.
    [[nodiscard]] static std::filesystem::path defaultFile();

    // A command was started, by its global name.
    void add(const ZrString& globalName);
    // Each once, the last one first.
    [[nodiscard]] const std::vector<ZrString>& names() const { return names_; }

private:
    void putFirst(const ZrString& name);

    History file_;
    std::vector<ZrString> names_;
};

} // namespace quor::ed
