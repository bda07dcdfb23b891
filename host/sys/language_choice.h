// Which language the program speaks.
#pragma once

#include "sdk/sys/string.h"

#include <functional>
#include <string_view>

namespace quor {
class SettingsStore;
}

namespace quor::sys {

// The value of an environment variable, or null.
using Environment = std::function<const char*(const char* name)>;

// What the value of the user's setting LANGUAGE means, "zh" or "en". "auto" follows the environment: the first of
// LC_ALL, LC_MESSAGES and LANG that has a value decides, and one that begins with "en" means English. All else is
// Chinese.
[[nodiscard]] ZrString languageOf(std::wstring_view choice, const Environment& environment);
// The same with the environment of the process.
[[nodiscard]] ZrString languageOf(std::wstring_view choice);

// The language that the user has chosen.
[[nodiscard]] ZrString languageOf(SettingsStore& settings);

} // namespace quor::sys
