#include "host/sys/problem_report.h"

#include <utility>

namespace quor {

namespace {

ProblemReporter& currentReporter() {
    static ProblemReporter reporter;
    return reporter;
}

} // namespace

void setProblemReporter(ProblemReporter reporter) { currentReporter() = std::move(reporter); }

void reportProblem(const ZrString& message) {
    if (const ProblemReporter& reporter = currentReporter())
        reporter(message);
}

} // namespace quor
