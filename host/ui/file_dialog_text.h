// Choosing a file where there are no windows: the path is typed. Shared by the console, scripts and tests.
#pragma once

#include "host/front.h"

namespace quor::ui {

// The caption and the patterns of the filters.
[[nodiscard]] ZrString filePrompt(const FileQuestion& file);
// Asks for a path, blanks included; "~/" is the home folder, a relative path starts at the working folder. Enter and
// Esc cancel.
[[nodiscard]] FileAnswer askFile(const FileQuestion& file, const std::function<Answer(const Question&)>& ask);

} // namespace quor::ui
