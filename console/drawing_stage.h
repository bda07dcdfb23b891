// The drawing of a run: opened at the start with its settings, saved at the end.
#pragma once

#include "console/options.h"
#include "console/report.h"
#include "host/session.h"

namespace quor::console {

// Opens the drawing, or makes a new one, and sets the variables of --set.
[[nodiscard]] int openDrawing(Session& session, const Options& options, const Report& report);
// Saves the current drawing.
[[nodiscard]] int saveDrawing(Session& session, const std::string& path, const Report& report);

} // namespace quor::console
