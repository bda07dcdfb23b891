// How many pixels of the screen a length of the user interface has.
#pragma once

namespace quor::ui {

// Lengths of the interface are given for this many dots per inch.
inline constexpr int kReferenceDpi = 96;

// Set by the program that has a screen; kReferenceDpi until then. Values below 1 are ignored.
void setScreenDpi(int dpi);

} // namespace quor::ui
