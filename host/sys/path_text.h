// Paths as people write and read them.
#pragma once

#include "sdk/sys/string.h"

#include <filesystem>

namespace quor {

// A path as people type or paste it: without blanks and quotation marks around it, "~/" for the home folder.
[[nodiscard]] std::filesystem::path pathFromText(const ZrString& text);
[[nodiscard]] ZrString textOf(const std::filesystem::path& path);

// The whole path, without "." and ".." in it; as it is where the working folder is not to be had.
[[nodiscard]] std::filesystem::path absolutePath(const std::filesystem::path& path);

} // namespace quor
