// The command line of quor as a value.
#pragma once

#include "host/texts/text.h"
#include "sdk/sys/string.h"

#include <filesystem>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace quor::desktop {

struct Options {
    std::vector<std::filesystem::path> drawings; // none: a new one
    std::vector<std::string> scripts;
    std::vector<ZrString> modules; // none: the usual one
    ZrString language;             // "zh", "en"; empty: the user's setting
};

// What is said instead of running, and the status to end with: help and version with 0, wrong usage with 2.
struct Notice {
    int status = 0;
    ZrString text;
};

// `arguments` without the program's name and without those of the toolkit. `usual`: the language where --lang names
// none. Sets the language in use.
[[nodiscard]] std::variant<Options, Notice> parseOptions(std::span<const std::string> arguments, Language usual);

} // namespace quor::desktop
