// The names in a folder, for completion of paths.
#pragma once

#include "sdk/sys/string.h"

#include <vector>

namespace quor {

// Those of folders end with "/". "~/" at the start of the folder is the home folder. Empty for a folder that cannot be
// read.
[[nodiscard]] std::vector<ZrString> folderNames(const ZrString& folder);

} // namespace quor
