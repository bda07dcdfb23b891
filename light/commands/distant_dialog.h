// The question whether distant lights are to be used with photometric units, which they may over-expose.
#pragma once

namespace quor::light {

// Asks where there is a question: with photometric units, a person who typed the command, and no check box that says
// never to ask again. False when distant lights are not wanted, or the dialog was cancelled.
[[nodiscard]] bool askDistantLightsAllowed(bool calledFromScript);

} // namespace quor::light
