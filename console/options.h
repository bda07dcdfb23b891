// The command line of quorc as a value.
#pragma once

#include "host/texts/text.h"
#include "sdk/sys/string.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quor::console {

// Something to run: a script file or a line of commands.
struct Run {
    enum class Kind { Script, Command };
    Kind kind = Kind::Script;
    std::string text;
};

struct Setting {
    ZrString name;
    ZrString value;
};

struct Options {
    std::string drawing;   // empty: a new one
    std::vector<Run> runs; // in the order of the command line; none: standard input
    std::string output;    // empty: nothing is saved at the end
    std::vector<Setting> settings;
    std::vector<std::string> modules; // none: the usual one
    ZrString language;                // empty: the user's setting
    bool recover = false;
    bool keepGoing = false;
    bool quiet = false;
};

// What is said instead of running, and the status to end with: help and version on standard output with 0, wrong usage
// on standard error with 2.
struct Notice {
    int status = 0;
    ZrString text;
};

// `arguments` without the program's name. `usual`: the language where --lang names none. Sets the language in use.
[[nodiscard]] std::variant<Options, Notice> parseOptions(std::span<const char* const> arguments, Language usual);

} // namespace quor::console
