// The drawings that programs left behind which ended without their person's will.
#pragma once

#include "host/autosave/copy_file.h"
#include "host/autosave/copy_folder.h"
#include "host/db/database.h"

#include <cstdint>
#include <vector>

namespace quor {
class Document;
class Session;
} // namespace quor

namespace quor::autosave {

class Autosave;

struct LeftCopy {
    CopyFile file;
    CopyInfo info;
    std::uintmax_t size = 0; // bytes
};

// As long as it lives, no other program finds the same copies. What is neither recovered nor discarded then is found
// again.
class Recovery {
public:
    explicit Recovery(const std::filesystem::path& folder = copiesFolder());

    // The latest first.
    [[nodiscard]] const std::vector<LeftCopy>& copies() const { return copies_; }
    // Opens the copy as a drawing with unsaved changes under its own path, so that SAVE writes to where it came from;
    // it becomes current. Without a path when it had none, or another document has that path. The copy stays until the
    // drawing is saved or closed. The error says why the copy cannot be read; it stays, too.
    [[nodiscard]] Result<Document*, db::FileProblem> recover(Session& session, Autosave& autosave,
                                                             const LeftCopy& copy) const;
    static void discard(const LeftCopy& copy) { remove(copy.file); }

private:
    void collect(const std::filesystem::path& folder);

    std::vector<CopyFolder> folders_;
    std::vector<LeftCopy> copies_;
};

} // namespace quor::autosave
