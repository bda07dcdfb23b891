// What a light takes over from its photometric web file.
#pragma once

#include "sdk/db/light.h"

namespace quor::db {

struct LightWeb {
    Quor::ErrorStatus status = Quor::eOk;
    double flux = 0; // lumen; 0 without a web
    WebSymmetry symmetry = WebSymmetry::kUnknown;
};

// Reads a web file; an empty path is no web. For a file that is refused, `reason` (unless null) is set to the words for
// people.
[[nodiscard]] LightWeb readLightWeb(const ZrString& path, ZrString* reason);

} // namespace quor::db
