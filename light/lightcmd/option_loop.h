// The option loop of a light command as data: its question, its keywords, what each of them does, and the points in
// which the commands differ from each other on purpose.
#pragma once

#include "light/res/text_table.h"

#include <span>

class CZrMultiLight;

namespace quor::light {

// Which question is asked, and whether Photometry is answered, follows LIGHTINGUNITS. A person who changes the variable
// transparently during the loop sees the difference.
enum class UnitsRead {
    OnEveryPass,
    OnceAtTheStart,
    Never, // the light is photometric, whatever the variable has become
};

// What a keyword does when the light is gone.
enum class WithoutLight {
    EndsAtOnce,     // with RTNORM, no name is given
    EndsButForExit, // as above, but eXit leaves the loop as ever
    IsIgnored,      // the keyword is answered all the same
    LeavesTheLoop,  // as eXit does
};

// One option: the keyword, matched without regard to case, and the prompt behind it. "eXit" needs no row.
struct LightOption {
    const wchar_t* keyword;
    void (*ask)(CZrMultiLight& command);
    bool photometricOnly = false; // ignored while LIGHTINGUNITS is 0
};

struct OptionLoop {
    const Text& standardPrompt;    // LIGHTINGUNITS 0
    const Text& photometricPrompt; // LIGHTINGUNITS 1 or 2
    const Text& keywords;          // those without a row are accepted and do nothing
    UnitsRead unitsRead;
    WithoutLight withoutLight;
    std::span<const LightOption> options;
    std::span<const LightOption> ownOptions = {}; // those that only this command has
};

template <auto prompt>
struct PromptOf;
template <class Command, class Result, Result (Command::*prompt)()>
struct PromptOf<prompt> {
    static void ask(CZrMultiLight& command) { static_cast<void>((static_cast<Command&>(command).*prompt)()); }
    static void askUntilDone(CZrMultiLight& command) {
        while (!(static_cast<Command&>(command).*prompt)()) {
        }
    }
};

// The function behind a row from a prompt of the command's class; what the prompt answers is ignored.
template <auto prompt>
inline constexpr void (*ask)(CZrMultiLight& command) = &PromptOf<prompt>::ask;
// The same for a prompt that answers false where it has to be asked again.
template <auto prompt>
inline constexpr void (*askUntilDone)(CZrMultiLight& command) = &PromptOf<prompt>::askUntilDone;

} // namespace quor::light
