// How wide the terminal is to which the program writes.
#pragma once

namespace quor::console {

// The columns of standard output's terminal as it is now; 0 where that is no terminal or does not say.
[[nodiscard]] int screenColumns();

} // namespace quor::console
