// The questions that several commands ask, on top of the get functions.
#pragma once

#include "host/texts/text.h"
#include "sdk/ed/get.h"

#include <filesystem>
#include <optional>

namespace quor::commands {

// Arms the next get call with keywords that are the same in every language.
void armKeywords(int flags, const wchar_t* words);

// Prints a message and answers RTERROR: how a command ends that cannot do what was asked.
template <class... Args>
[[nodiscard]] int failWith(const Text& message, const Args&... arguments) {
    say(message, arguments...);
    return RTERROR;
}

// Yes, no, or nothing for Esc; Enter gives `onEnter`.
[[nodiscard]] std::optional<bool> askYesNo(const ZrString& prompt, bool onEnter);

// A text that may hold blanks, without those around it; empty for Enter, nothing for Esc.
[[nodiscard]] std::optional<ZrString> askLine(const ZrString& prompt);
// A text that a blank ends.
[[nodiscard]] std::optional<ZrString> askWord(const ZrString& prompt);

// A path as people type or paste it: without blanks and quotation marks around it, "~/" for the home folder.
[[nodiscard]] std::filesystem::path pathFromText(const ZrString& text);
[[nodiscard]] ZrString textOf(const std::filesystem::path& path);

} // namespace quor::commands
