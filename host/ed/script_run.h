// Runs what scripts and other programs have to say, to their end or to their first failure.
#pragma once

#include "host/ed/command_processor.h"

namespace quor {
class Session;
}

namespace quor::ed {

// A command that did not end well, and where in its script it began.
struct ScriptFailure {
    Verdict verdict;
    Origin origin;
};

struct ScriptOutcome {
    std::size_t commands = 0;
    std::size_t failures = 0;
    std::optional<ScriptFailure> first;
};

// Runs commands from the sources of the session's input until they are used up or the host is to quit. Stops at the
// first failure and drops what is left, unless `keepGoing`. Esc is no failure. The person is not asked for commands.
// `afterCommand` sees each verdict; it answers false to stop as if by a failure that does not count.
using AfterCommand = std::function<bool(const Verdict& verdict)>;
ScriptOutcome runSources(Session& session, bool keepGoing, const AfterCommand& afterCommand = {});

} // namespace quor::ed
