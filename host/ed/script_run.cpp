#include "host/ed/script_run.h"

#include "host/session.h"

namespace quor::ed {

ScriptOutcome runSources(Session& session, bool keepGoing, const AfterCommand& afterCommand) {
    ScriptOutcome outcome;
    while (!session.processor().quitRequested() && session.input().hasProgramInput()) {
        const std::optional<Verdict> verdict = session.processor().step();
        if (!verdict)
            break;
        outcome.commands += verdict->command.empty() ? 0 : 1;
        const bool failed = verdict->isFailure();
        outcome.failures += failed ? 1 : 0;
        if (failed && !outcome.first)
            outcome.first = ScriptFailure{*verdict, session.input().commandOrigin()};
        const bool goOn = !afterCommand || afterCommand(*verdict);
        if (!goOn || (failed && !keepGoing)) {
            session.input().clear();
            break;
        }
    }
    return outcome;
}

} // namespace quor::ed
