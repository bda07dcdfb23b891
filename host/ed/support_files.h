// The search for files that are named without the folder in which they stand.
#pragma once

#include "sdk/sys/string.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace quor {
class Session;
}

namespace quor::ed {

// Where support files are looked for, in this order: the folder of the current drawing, the working folder, the folders
// of SUPPORTPATH (separated by ";", relative ones from the working folder, "~/" is the home folder), the web files that
// come with the host. Whole paths; a folder of them need not exist.
[[nodiscard]] std::vector<std::filesystem::path> supportFolders(Session& session);

// The whole path of the first file of that name (which may hold folders of its own) in those folders; nothing when
// there is none. Folders and devices are no files. An absolute path is answered as it is, whether or not it exists.
[[nodiscard]] std::optional<std::filesystem::path> findSupportFile(Session& session, const ZrString& name);

} // namespace quor::ed
