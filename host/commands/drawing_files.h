// Opening and saving drawings, as several commands do it. Messages included.
#pragma once

#include "host/document.h"

#include <filesystem>

namespace quor {
class Session;
}

namespace quor::commands {

// Opens a drawing and makes it current; one that is open already becomes current. RTNORM or RTERROR.
int openPath(Session& session, const std::filesystem::path& file, bool recover);

// The path with the extension behind a name that has none; a dot at the end is none. A folder or a device stays what it
// is.
[[nodiscard]] std::filesystem::path withExtension(std::filesystem::path path, const char* extension = ".dxf");
// Asks where to save. A name without extension gets ".dxf". Asks before it replaces a file other than the drawing's
// own. RTNORM with a path, RTCAN for Esc or Enter, RTERROR after a message for a file that is to be kept, a place where
// nothing can be saved, and a drawing of which a block is being edited in place.
[[nodiscard]] int askSavePath(Session& session, const Document& document, std::filesystem::path& path);
// Saves and says where; a file that broke off is given its end. RTNORM or RTERROR.
int saveTo(Document& document, const std::filesystem::path& path);
// Saves to the drawing's own file; asks for one when it has none.
int saveInPlace(Session& session, Document& document);

// Whether two paths name the same file, existing or not.
[[nodiscard]] bool sameFile(const std::filesystem::path& a, const std::filesystem::path& b);
// The open drawing with that file, or null.
[[nodiscard]] Document* openDocument(Session& session, const std::filesystem::path& path);
// The file name without its folder: what drawings are called in questions.
[[nodiscard]] ZrString shortName(const Document& document);

} // namespace quor::commands
