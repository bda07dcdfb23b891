// The commands that the module gives to the host, one row each, in the order in which they are registered.
#pragma once

#include "light/res/text_table.h"
#include "sdk/rx/command_manager.h"

#include <span>

namespace quor::light {

inline constexpr const wchar_t* commandGroup = L"QUOR_COMMAND_GROUP";

struct CommandRow {
    const wchar_t* globalName; // matched without regard to case; kept as it is spelled here
    const Text& localName;
    const Text& help;
    RxCommandFactory make; // a new command object, null when there is no memory for it
    RxCommandEntry run;    // has the command library make, execute and delete one
};

[[nodiscard]] std::span<const CommandRow> commandRows();

} // namespace quor::light
