// The folder in which one running program keeps the copies of its drawings. It is locked as long as the program lives,
// however it ends.
#pragma once

#include "host/sys/descriptor.h"
#include "host/sys/result.h"

#include <filesystem>
#include <optional>

namespace quor::autosave {

// quor/autosave in the user's folder for the state of programs ($XDG_STATE_HOME, else ~/.local/state), where every
// program has a folder of its own; empty when neither is set.
[[nodiscard]] std::filesystem::path copiesFolder();

class CopyFolder {
public:
    // A new one below `parent`, which is made when need be, for this user alone. The error is an errno.
    [[nodiscard]] static Result<CopyFolder, int> make(const std::filesystem::path& parent);
    // One that a program left behind. Nothing while that program lives, or another one has taken the folder over.
    [[nodiscard]] static std::optional<CopyFolder> takeOver(const std::filesystem::path& folder);

    CopyFolder(CopyFolder&&) noexcept = default;
    CopyFolder& operator=(CopyFolder&&) = delete;
    // Removes the folder unless there are copies in it; others may take it over then.
    ~CopyFolder();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    CopyFolder(std::filesystem::path path, Descriptor lock) : path_(std::move(path)), lock_(std::move(lock)) {}

    std::filesystem::path path_;
    Descriptor lock_;
};

} // namespace quor::autosave
