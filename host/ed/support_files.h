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

// The same, but where there is no file of that name, the first thing that has the name and is none: a folder, a device,
// a link that leads in a circle, what must not be looked at. Reading it tells what is wrong with it.
[[nodiscard]] std::optional<std::filesystem::path> findSupportName(Session& session, const ZrString& name);

// What a path that a drawing keeps stands for on this machine: an absolute path for itself while something is there,
// any other one for what findSupportName finds. Then for the first file of its last name alone, because the drawing may
// have come from elsewhere. Backslashes separate names, too, where nothing has them in its name. Nothing when none of
// these is there.
[[nodiscard]] std::optional<std::filesystem::path> findKeptFile(Session& session, const ZrString& kept);

} // namespace quor::ed
