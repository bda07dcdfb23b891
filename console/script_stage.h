// Runs scripts and -c commands one after the other.
#pragma once

#include "console/console_front_end.h"
#include "console/options.h"
#include "console/report.h"
#include "host/ed/script_source.h"
#include "host/session.h"

namespace quor::console {

struct ScriptToRun {
    std::unique_ptr<ed::ScriptSource> source;
    ZrString name;         // what messages call it
    std::size_t lines = 0; // of a script file
};

// Opens all of them, so that nothing runs when one cannot be read.
[[nodiscard]] int readScripts(const std::vector<Run>& runs, const Report& report, std::vector<ScriptToRun>& scripts);

struct ScriptRoom {
    Session& session;
    ConsoleFrontEnd& front;
    Output& output;
    bool keepGoing;
    const Report& report;
};

// A script stops at its first failed command, and so does the run, unless `keepGoing`. Ctrl+C stops it as well.
[[nodiscard]] int runScripts(const ScriptRoom& room, std::vector<ScriptToRun> scripts);

// Runs what a typed command (SCRIPT, a macro) has left to be run, by the same rules.
[[nodiscard]] int runWaiting(const ScriptRoom& room);

} // namespace quor::console
