// Errors of a run, on standard error.
#pragma once

#include "console/output.h"

namespace quor::console {

// Prints "quorc: …" behind everything that was printed before it.
class Report {
public:
    Report(ByteSink sink, Output& output) : sink_(std::move(sink)), output_(output) {}
    void operator()(std::wstring_view message) const;

private:
    ByteSink sink_;
    Output& output_;
};

} // namespace quor::console
