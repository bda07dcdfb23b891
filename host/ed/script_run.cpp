#include "host/ed/script_run.h"

#include "host/session.h"

namespace quor::ed {

ScriptOutcome runSources(Session& session, bool keepGoing) {
    ScriptOutcome outcome;
    while (!session.processor().quitRequested() && session.input().hasProgramInput()) {
        const std::optional<Verdict> verdict = session.processor().step();
        if (!verdict)
            break;
        outcome.commands += verdict->command.empty() ? 0 : 1;
        if (!verdict->isFailure())
            continue;
        ++outcome.failures;
        if (!outcome.first)
            outcome.first = ScriptFailure{*verdict, session.input().commandOrigin()};
        if (!keepGoing) {
            session.input().clear();
            break;
        }
    }
    return outcome;
}

} // namespace quor::ed
