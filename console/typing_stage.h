// Commands as a person types them, on a terminal or through a pipe.
#pragma once

#include "console/console_front_end.h"
#include "console/options.h"
#include "console/report.h"
#include "console/run_console.h"
#include "host/session.h"

namespace quor::console {

struct TypingRoom {
    Session& session;
    ConsoleFrontEnd& front;
    Output& output;
    const Options& options;
    const Streams& streams;
    const Report& report;
};

// Until the input ends or QUIT. A failed command ends nothing, but through a pipe a script that failed counts.
[[nodiscard]] int typeCommands(const TypingRoom& room);

} // namespace quor::console
