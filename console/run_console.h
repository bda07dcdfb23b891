// A whole run of quorc: modules, drawing, settings, then scripts or a person's input, then saving.
#pragma once

#include "console/options.h"
#include "console/output.h"
#include "console/pipe_reader.h"
#include "console/progress_meter.h"
#include "host/session.h"

namespace quor::console {

struct Streams {
    ByteSource in;
    ByteSink out;
    ByteSink err;
    bool editsLines = false;    // input and output are a terminal
    bool showsProgress = false; // the error output is a terminal
    bool outputIsScreen = true; // the output is a terminal, so that progress must keep out of its way
    ScreenColumns columns;      // of the terminal that is the output; none for files and pipes
    ProgressMeter::Clock clock = std::chrono::steady_clock::now;
};

// Answers the exit status (console/exit_status.h). `session`: where the host finds its things; the language is set
// here.
int runConsole(const Options& options, const Streams& streams, SessionOptions session = {});

} // namespace quor::console
