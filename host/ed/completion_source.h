// What may be typed at a question of the running session, for completion.
#pragma once

#include "host/ed/completion.h"
#include "host/front.h"

namespace quor {
class Session;
}

namespace quor::ed {

// The question's keywords are referred to, not copied.
[[nodiscard]] CompletionSource completionSource(Session& session, const Question& question);

} // namespace quor::ed
