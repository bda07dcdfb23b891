// The lines that a person typed, kept from session to session in a plain text file.
#pragma once

#include "sdk/sys/string.h"

#include <filesystem>
#include <vector>

namespace quor::ed {

// Best effort: without a file that can be read or written there is no history, and nobody is told.
class History {
public:
    static constexpr std::size_t kMostLines = 1000;

    // `file` empty: nothing is kept.
    explicit History(std::filesystem::path file) : file_(std::move(file)) {}
    // quor/history in the user's state folder ($XDG_STATE_HOME, else ~/.local/state); empty when there is none.
    [[nodiscard]] static std::filesystem::path defaultFile();

    // The last lines, oldest first. A file that has grown far beyond them is cut.
    [[nodiscard]] std::vector<ZrString> load() const;
    // Adds a line at once, so that sessions beside each other lose nothing.
    void add(std::wstring_view line) const;

private:
    std::filesystem::path file_;
};

} // namespace quor::ed
