// Whether a file may be written where somebody said, the same for drawings and for other files.
#pragma once

#include "host/document.h"
#include "host/texts/text.h"

#include <filesystem>

namespace quor {
class Session;
}

namespace quor::commands {

// What is said of a file that is not written. Each is about the path, or about the folder that does not exist.
struct PlaceTexts {
    const Text& isFolder;
    const Text& noRegularFile;
    const Text& noSuchFolder;
    const Text& isOpenDrawing;
    const Text& notReplaced;
};

// Says why nothing can be written there, and asks before it replaces a file. `own`: the open drawing that may be
// written to its file again, unasked; null: none. `mayReplace`: the person has said so already. RTNORM, RTCAN for Esc,
// RTERROR after a message, which a person is shown in a box of its own.
[[nodiscard]] int checkPlace(Session& session, const std::filesystem::path& path, const Document* own,
                             const PlaceTexts& place, bool mayReplace = false);

} // namespace quor::commands
