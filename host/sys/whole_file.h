// A file read to its end at once. What the system refuses comes back as its error number; see systemErrorText().
#pragma once

#include "host/sys/descriptor.h"
#include "host/sys/result.h"

#include <cstddef>
#include <filesystem>
#include <string>

#include <sys/stat.h>

namespace quor {

// Which files may be read. A pipe or device may make the reader wait, or never end.
enum class FileKinds { Regular, All };

// An open file with what the system tells of it.
struct OpenFile {
    Descriptor descriptor;
    struct stat status {};
};

// Opens for reading. EISDIR for a folder; with Regular, which never waits, ENODEV for a pipe, a device and the like.
[[nodiscard]] Result<OpenFile, int> openFile(const std::filesystem::path& path, FileKinds kinds = FileKinds::Regular);

// What is left of the file; EFBIG when that is more than `limit` bytes, of which no more than one is read in vain.
[[nodiscard]] Result<std::string, int> readToEnd(const OpenFile& file, std::size_t limit);

// Both, one after the other.
[[nodiscard]] Result<std::string, int> readWholeFile(const std::filesystem::path& path, std::size_t limit,
                                                     FileKinds kinds = FileKinds::Regular);

} // namespace quor
