// What zredInitGet armed, and the keyword that was answered last.
#pragma once

#include "sdk/sys/string.h"

#include <utility>

namespace quor::ed {

struct InputState {
    int flags = 0;
    ZrString keywords;
    ZrString lastKeyword;

    // The armed flags and keywords; from then on nothing is armed.
    struct Armed {
        int flags = 0;
        ZrString keywords;
    };
    [[nodiscard]] Armed take() { return {std::exchange(flags, 0), std::exchange(keywords, {})}; }
};

} // namespace quor::ed
