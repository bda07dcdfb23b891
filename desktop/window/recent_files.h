// The drawings that were opened or saved last, kept across runs.
#pragma once

#include "sdk/sys/string.h"

#include <filesystem>
#include <vector>

namespace quor {
class DocumentManager;
class SettingsStore;
} // namespace quor

namespace quor::desktop {

class RecentFiles {
public:
    static constexpr std::size_t kMost = 9;

    explicit RecentFiles(SettingsStore& settings) : settings_(settings) {}

    // The last one first.
    [[nodiscard]] std::vector<ZrString> all() const;
    // Adds the files of drawings that were opened, or saved under another name, since the last look.
    void follow(const DocumentManager& documents);
    // Puts a file in front; a file that was there already moves.
    void add(const std::filesystem::path& file);
    void clear();

private:
    void keep(const std::vector<ZrString>& files);

    SettingsStore& settings_;
    std::vector<std::filesystem::path> open_; // at the last look
};

} // namespace quor::desktop
