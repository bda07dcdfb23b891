// Errors of a run, on standard error.
#pragma once

#include "console/progress_line.h"

namespace quor::console {

// Prints "quorc: …" behind everything that was printed before it.
class Report {
public:
    Report(ByteSink sink, Output& output, ProgressLine& progress)
        : sink_(std::move(sink)), output_(output), progress_(progress) {}
    void operator()(std::wstring_view message) const;

private:
    ByteSink sink_;
    Output& output_;
    ProgressLine& progress_;
};

} // namespace quor::console
