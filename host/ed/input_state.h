// What zredInitGet armed, and the keyword that was answered last.
#pragma once

#include "host/ed/keywords.h"

#include <utility>

namespace quor::ed {

struct InputState {
    int flags = 0;
    std::shared_ptr<const KeywordList> keywords; // null: none
    ZrString lastKeyword;

    // The armed flags and keywords; from then on nothing is armed.
    struct Armed {
        int flags = 0;
        std::shared_ptr<const KeywordList> keywords;
    };
    [[nodiscard]] Armed take() { return {std::exchange(flags, 0), std::move(keywords)}; }
};

} // namespace quor::ed
