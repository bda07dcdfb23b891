// How often a drawing is copied: for a small one after every command, for a large one so seldom that a person does not
// notice.
#pragma once

#include <algorithm>

namespace quor::autosave {

// Seconds that go by since the last copy before the next one is made. `took`: how long the last one was written.
// `longest`: after so long a change is copied, whatever that costs.
[[nodiscard]] constexpr double waitAfter(double took, double longest) {
    constexpr double kLeast = 2;
    constexpr double kShare = 20; // of the time that goes by
    return std::min(std::max(kLeast, kShare * took), std::max(kLeast, longest));
}

// After a copy that could not be written.
inline constexpr double kWaitAfterFailure = 30;

} // namespace quor::autosave
