// Lengths of the user interface on the screen in use.
#pragma once

// A length of the user interface, given for 96 dots per inch, in pixels of the screen in use.
[[nodiscard]] int ZkUiGetCtrlDPISize(int size);
// How much larger than at 96 dots per inch things are shown: 1.0, 1.5, 2.0, …
[[nodiscard]] double ZkUiGetDisplayScale();
