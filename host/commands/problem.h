// What went wrong with a drawing's file, told where the person looks: a line at the command line is easily overlooked.
#pragma once

#include "host/commands/ask.h"

namespace quor::commands {

// Prints a message as it stands; a person who typed the command is shown it too, scripts and programs are not. RTERROR.
[[nodiscard]] int failBeforePerson(const ZrString& message);
template <class... Args>
[[nodiscard]] int failBeforePerson(const Text& message, const Args&... arguments) {
    return failBeforePerson(fillShown(message, arguments...));
}

} // namespace quor::commands
