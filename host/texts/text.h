// A text of the host in its two languages, side by side. The tables of this folder hold all that the host says, one per
// area.
#pragma once

#include "sdk/ed/print.h"

namespace quor {

enum class Language { Chinese, English };

// The language in which the host speaks; Chinese unless set.
[[nodiscard]] Language language();
void setLanguage(Language language);

struct Text {
    const wchar_t* chinese;
    const wchar_t* english;
    [[nodiscard]] const wchar_t* get() const { return language() == Language::English ? english : chinese; }
};

// The text with its placeholders filled.
template <class... Args>
[[nodiscard]] ZrString fill(const Text& text, const Args&... arguments) {
    return zrFormat(text.get(), {ZrFormatArg(arguments)...});
}

// Prints a text of the host on the command line.
template <class... Args>
void say(const Text& text, const Args&... arguments) {
    printText(fill(text, arguments...));
}

} // namespace quor
