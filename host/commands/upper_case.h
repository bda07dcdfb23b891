// Names of commands and variables as they are shown: in capitals.
#pragma once

#include "sdk/sys/string.h"

namespace quor::commands {

// ASCII letters only; the names have no others.
[[nodiscard]] inline ZrString upperCase(ZrString name) {
    for (wchar_t& c : name)
        if (c >= L'a' && c <= L'z')
            c = static_cast<wchar_t>(c - L'a' + L'A');
    return name;
}

} // namespace quor::commands
