// A person's change beside the commands: one step of undo, or nothing at all.
#pragma once

#include "host/props/property.h"

#include <functional>

namespace quor {
class Session;
}

namespace quor::props {

// Makes a change of the current drawing under that name. While a command runs, or while somebody else has the drawing,
// it is refused. What `change` refuses is taken back as a whole and leaves no step of undo.
[[nodiscard]] Refusal makeChange(Session& session, const wchar_t* name, const std::function<Refusal()>& change);

// Whether makeChange() would get that far: a drawing is open and no command runs.
[[nodiscard]] bool canChange(Session& session);

} // namespace quor::props
