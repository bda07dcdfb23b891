// A view of a window that looks at all of it whenever something changes, also in the middle of things: what a toolkit's
// views may do.
#pragma once

class CWnd;

namespace quor::fuzz {

// Looks at the window, and at those in it, from now on.
void watch(CWnd& window);

} // namespace quor::fuzz
