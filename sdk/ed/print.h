// Output on the command line. `format` is the caller's own text; what comes from people or files goes into arguments.
#pragma once

#include "sdk/rx/result_codes.h"
#include "sdk/sys/format.h"

namespace quor {
// Prints a text as it stands.
void printText(std::wstring_view text);
} // namespace quor

// Prints a formatted text; placeholders as zrFormat knows them. Answers RTNORM.
template <class... Args>
int zrutPrintf(const wchar_t* format, const Args&... arguments) {
    quor::printText(zrFormat(format, {ZrFormatArg(arguments)...}));
    return RTNORM;
}

// The same for texts that belong to the prompt area (lists that a question shows on request).
template <class... Args>
int zredPromptF(const wchar_t* format, const Args&... arguments) {
    return zrutPrintf(format, arguments...);
}
