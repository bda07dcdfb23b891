// The signals that quorc acts on. Handlers only set a mark; those who wait look at it.
#pragma once

namespace quor::console::signals {

// SIGINT, SIGWINCH and SIGCONT are noted from now on; SIGPIPE and SIGXFSZ are left to the result of writing.
void install();
// Whether Ctrl+C was pressed since it was last forgotten.
[[nodiscard]] bool interrupted();
void forgetInterrupt();
// Whether the terminal has another size or was used by somebody else since the last call.
[[nodiscard]] bool takeTerminalChange();

} // namespace quor::console::signals
