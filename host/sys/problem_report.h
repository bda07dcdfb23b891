// Where things that go wrong beside what a command does are told: a colour book that is broken, a line of a language
// pack that is refused. Who finds them need not know who shows them.
#pragma once

#include "sdk/sys/string.h"

#include <functional>

namespace quor {

// Takes one line for people.
using ProblemReporter = std::function<void(const ZrString& message)>;

// A session shows problems on the command line; a program may show them elsewhere. Without a reporter nobody is told.
void setProblemReporter(ProblemReporter reporter);
void reportProblem(const ZrString& message);

} // namespace quor
