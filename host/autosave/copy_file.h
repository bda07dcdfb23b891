// The copy of one drawing: its file and what is kept beside it.
#pragma once

#include "host/autosave/copy_info.h"
#include "host/sys/result.h"

#include <filesystem>

namespace quor {
class Document;
}

namespace quor::autosave {

// "3.dxf" and "3.info" of a folder. A copy counts as soon as the first one is there.
struct CopyFile {
    std::filesystem::path folder;
    int number = 0;

    [[nodiscard]] std::filesystem::path drawing() const;
    [[nodiscard]] std::filesystem::path info() const;
};

// Writes what SAVE would write, and leaves the drawing, whether it is modified, and its own files as they are. The
// error is a reason for people, without a full stop.
[[nodiscard]] Result<void, ZrString> write(Document& document, const CopyFile& copy);
[[nodiscard]] CopyInfo readInfo(const CopyFile& copy);
void remove(const CopyFile& copy);
// False, with the copy where it was, when that is not possible.
[[nodiscard]] bool move(const CopyFile& from, const CopyFile& to);

} // namespace quor::autosave
