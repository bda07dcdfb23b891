// The questions that several commands ask, on top of the get functions.
#pragma once

#include "host/sys/path_text.h"
#include "host/sys/visible_text.h"
#include "host/texts/text.h"
#include "sdk/ed/get.h"

#include <functional>
#include <optional>
#include <type_traits>

namespace quor::commands {

// Arms the next get call with keywords that are the same in every language.
void armKeywords(int flags, const wchar_t* words);

// What goes into a message: numbers as they are, texts (of people or files) with their control characters spelled out.
template <class T>
[[nodiscard]] auto shown(const T& argument) {
    if constexpr (std::is_convertible_v<const T&, std::wstring_view>)
        return visibleText(argument);
    else
        return argument;
}

// As fill() and say(), for arguments that hold texts of people or files.
template <class... Args>
[[nodiscard]] ZrString fillShown(const Text& text, const Args&... arguments) {
    return fill(text, shown(arguments)...);
}
template <class... Args>
void sayShown(const Text& text, const Args&... arguments) {
    printText(fillShown(text, arguments...));
}

// Prints a message and answers RTERROR: how a command ends that cannot do what was asked.
template <class... Args>
[[nodiscard]] int failWith(const Text& message, const Args&... arguments) {
    sayShown(message, arguments...);
    return RTERROR;
}

// Yes, no, or nothing for Esc; Enter gives `onEnter`.
[[nodiscard]] std::optional<bool> askYesNo(const ZrString& prompt, bool onEnter);

// A text that may hold blanks, without those around it; empty for Enter, nothing for Esc.
[[nodiscard]] std::optional<ZrString> askLine(const ZrString& prompt);
// A text that a blank ends.
[[nodiscard]] std::optional<ZrString> askWord(const ZrString& prompt);

// Asks for a text (askLine) until `take` answers true; it says itself why it did not. Enter leaves all as it is.
// RTNORM, or RTCAN for Esc.
[[nodiscard]] int askUntilTaken(const ZrString& prompt, const std::function<bool(const ZrString&)>& take);

} // namespace quor::commands
