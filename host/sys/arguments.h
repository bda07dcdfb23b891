// What the command lines of the programs have in common: their language, and what is said about wrong usage.
#pragma once

#include "host/texts/text.h"
#include "sdk/sys/string.h"

#include <optional>
#include <span>
#include <string>

namespace CLI {
class App;
}

namespace quor::sys {

// The language that --lang asks for, else `usual`: even what is wrong with a command line is said in it.
[[nodiscard]] Language languageOf(std::span<const std::string> arguments, Language usual);

// Lets `app` read the arguments; why it cannot, or nothing.
[[nodiscard]] std::optional<ZrString> readArguments(CLI::App& app, std::span<const std::string> arguments);

// What is wrong with the arguments that were read, or nothing: one that nobody takes, an empty value of an option of
// `needValue` (their long names), an empty name of a drawing, an unknown language.
[[nodiscard]] std::optional<ZrString> wrongUsage(const CLI::App& app, std::span<const char* const> needValue);

// "quor 1.2.3" for --version.
[[nodiscard]] ZrString versionLine(const ZrString& program);
// The whole message for a person: what is wrong, and where help is.
[[nodiscard]] ZrString usageHint(const ZrString& program, const ZrString& wrong);

} // namespace quor::sys
