// How quorc ends. A stage that fails ends the run with its own status; so the first failure decides, except that with
// --keep-going the drawing is saved after failed commands, and then a failed save counts for more.
#pragma once

namespace quor::console {

inline constexpr int kSuccess = 0;
inline constexpr int kCommandFailed = 1; // also a module that was not loaded, and output that could not be written
inline constexpr int kWrongUsage = 2;    // also a script that cannot be read, a setting that is not taken
inline constexpr int kNotRead = 3;
inline constexpr int kNotSaved = 4;
inline constexpr int kInterrupted = 130; // 128 + SIGINT, as shells count
inline constexpr int kReaderGone = 141;  // 128 + SIGPIPE

} // namespace quor::console
