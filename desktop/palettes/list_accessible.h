// Lists of the host for people who do not see them.
#pragma once

namespace quor::desktop {

// From now on every list view is known to screen readers as a list of its rows, each with its text and the name of its
// picture, and the headings behind them.
void installListAccessibility();

} // namespace quor::desktop
