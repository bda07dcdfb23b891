// The question for a file, as the commands that read one ask it.
#pragma once

#include "host/front.h"
#include "host/texts/text.h"

#include <optional>

namespace quor {
class Session;
}

namespace quor::commands {

// Whether a command asks for its file in a dialog at once: the program has one, FILEDIA is on, and a person typed the
// command and nothing behind it.
[[nodiscard]] bool asksInDialog(Session& session);

// A path or name as it was typed, or the whole path that was chosen after Enter; Enter chooses nothing where nobody is
// there to choose. Empty when the question was left.
[[nodiscard]] std::optional<ZrString> askFile(Session& session, const Text& prompt, const FileQuestion& chooser);

} // namespace quor::commands
