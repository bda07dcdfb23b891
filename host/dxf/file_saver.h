// Saves a file so that at every instant a whole old or a whole new one stands at its place.
#pragma once

#include "host/dxf/patch.h"
#include "host/sys/result.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace quor::dxf {

// What was being done when a save failed.
enum class SaveStep : std::uint8_t {
    Target,     // the target is a folder, a device or write-protected
    CreateTemp, // making the temporary file beside the target
    Write,      // writing it (disk full)
    Sync,       // bringing it to the disk
    Backup,     // keeping the previous version
    Replace,    // putting the new file in place
};

struct SaveError {
    SaveStep step = SaveStep::Target;
    int systemError = 0;        // errno
    std::filesystem::path path; // what the step was about
};

struct SaveOptions {
    bool keepBackup = true; // the previous version becomes <stem>.bak
    // Told a share from 0 to 1, now and then: of what is known to be written.
    std::function<void(double)> progress = {};
};

// Writes beside the target, syncs, keeps the old version, renames, syncs the folder. Follows symbolic links. A save
// that fails removes what it made and leaves target and backup as they were. The new file has the old one's
// permissions.
[[nodiscard]] Result<void, SaveError> saveAtomically(const std::filesystem::path& path, const Segments& segments,
                                                     const SaveOptions& options = {});

// The same for a file that is longer than it should take memory: `next` gives it piece by piece, each valid until the
// next one; an empty one is the end. What it throws leaves everything as it was.
[[nodiscard]] Result<void, SaveError> savePiecesAtomically(const std::filesystem::path& path,
                                                           const std::function<std::string_view()>& next,
                                                           const SaveOptions& options = {});

// Where the previous version of path goes: "a/plan.dxf" to "a/plan.bak".
[[nodiscard]] std::filesystem::path backupPath(const std::filesystem::path& path);

} // namespace quor::dxf
