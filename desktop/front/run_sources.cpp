#include "desktop/front/run_sources.h"

#include "desktop/front/desktop_front_end.h"
#include "host/ed/script_run.h"
#include "host/session.h"
#include "host/texts/command_line.h"

namespace quor::desktop {

void runSources(Session& session, DesktopFrontEnd& front) {
    ed::runSources(session, false, [&](const ed::Verdict&) {
        const bool goesOn = front.goesOn();
        if (!goesOn && session.input().hasProgramInput())
            say(texts::line::kScriptStopped);
        return goesOn;
    });
}

} // namespace quor::desktop
