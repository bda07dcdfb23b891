// Choosing a file, for commands of the host and for the file dialogs of modules.
#pragma once

#include "sdk/sys/string.h"

#include <optional>

namespace quor {
struct FileAnswer;
struct FileQuestion;
class Session;
} // namespace quor

namespace quor::ui {

// The whole path of the chosen file, or nothing when it was cancelled, which the command processor is told. An answer
// of a script or a macro that is there already is taken, so that a script never waits for a person.
[[nodiscard]] std::optional<ZrString> chooseFile(Session& session, const FileQuestion& question);
// The same with all that the person said beside.
[[nodiscard]] FileAnswer chooseFileFully(Session& session, const FileQuestion& question);

} // namespace quor::ui
