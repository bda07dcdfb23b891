// The parts of a prompt that stand for an answer: the options in brackets and the default in angle brackets. Pure.
#pragma once

#include "sdk/sys/string.h"

#include <span>
#include <string_view>
#include <vector>

namespace quor::ed {

struct PromptPart {
    enum class Kind { Plain, Option, Default };
    Kind kind = Kind::Plain;
    ZrString text;   // as the prompt has it; the parts one after the other are the prompt
    ZrString answer; // of an option: what a person would type for it; of a default: empty, which is Enter
    bool operator==(const PromptPart&) const = default;
};

// Cuts "[名称(N)/退出(X)] <退出>: " or "[Name/eXit] <eXit>: " at its options and its default. An option whose letters
// stand for none of the keywords is the keyword of its place, where there are as many of both; without keywords any
// option is taken for what it says.
[[nodiscard]] std::vector<PromptPart> promptParts(std::wstring_view prompt, std::span<const ZrString> keywords);

} // namespace quor::ed
