// The result codes of command-line input and of commands.
#pragma once

inline constexpr int RTNONE = 5000;   // Enter
inline constexpr int RTNORM = 5100;   // an answer was given
inline constexpr int RTERROR = -5001; // the input itself broke, or a command failed
inline constexpr int RTCAN = -5002;   // Esc
inline constexpr int RTREJ = -5003;   // a request that the host refuses
inline constexpr int RTFAIL = -5004;  // no connection to a drawing
inline constexpr int RTKWORD = -5005; // a keyword where a value was asked; zredGetInput tells which
