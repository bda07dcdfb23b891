// What a light takes over from its photometric web file.
#pragma once

#include "sdk/db/light.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace quor::db {

struct LightWeb {
    Quor::ErrorStatus status = Quor::eOk;
    double flux = 0; // lumen; 0 without a web
    WebSymmetry symmetry = WebSymmetry::kUnknown;
};

// Reads a web file; an empty path is no web. For a file that is refused, `reason` (unless null) is set to the words for
// people.
[[nodiscard]] LightWeb readLightWeb(const ZrString& path, ZrString* reason);

// The symmetry of the file that a path kept in a drawing stands for; kUnknown when there is none that can be read.
[[nodiscard]] WebSymmetry symmetryOfKeptWeb(const ZrString& kept);

// That file; nothing when it is not found.
[[nodiscard]] std::optional<std::filesystem::path> findKeptWeb(const ZrString& kept);

// Where to look for it; without a finder a path stands for itself.
using WebFinder = std::function<std::optional<std::filesystem::path>(const ZrString& kept)>;
void setWebFinder(WebFinder finder);

} // namespace quor::db
