// The help pages of the host's own commands, one for each.
#pragma once

#include "host/texts/text.h"

#include <span>

namespace quor::texts {

// What a page tells: which topic it belongs to, what the command does, what it asks, how it is used.
struct HelpPage {
    const wchar_t* command;
    const Text& topic;
    Text summary;
    Text questions;
    const wchar_t* example;
};

// By topic, in the order in which the overview shows them.
[[nodiscard]] std::span<const HelpPage> helpPages();

} // namespace quor::texts
