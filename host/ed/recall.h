// The lines that Up and Down bring back into an input line.
#pragma once

#include "sdk/sys/string.h"

#include <vector>

namespace quor::ed {

class Recall {
public:
    explicit Recall(std::vector<ZrString> lines = {}) : lines_(std::move(lines)), at_(lines_.size()) {}

    // A line that was typed; the way back begins at it. False for one of blanks and for the last one again, which are
    // not kept.
    bool add(const ZrString& line) {
        const bool isNew =
            line.find_first_not_of(L" \t") != ZrString::npos && (lines_.empty() || lines_.back() != line);
        if (isNew)
            lines_.push_back(line);
        leave();
        return isNew;
    }
    // The line before the one that is shown; `typed` is kept for the way back to it. Null at the oldest.
    [[nodiscard]] const ZrString* older(const ZrString& typed) {
        if (at_ == 0)
            return nullptr;
        if (at_ == lines_.size())
            typed_ = typed;
        return &lines_[--at_];
    }
    // The line after the one that is shown, at last what was typed. Null there.
    [[nodiscard]] const ZrString* newer() {
        if (at_ >= lines_.size())
            return nullptr;
        ++at_;
        return at_ == lines_.size() ? &typed_ : &lines_[at_];
    }
    void leave() { at_ = lines_.size(); }

private:
    std::vector<ZrString> lines_;
    std::size_t at_;
    ZrString typed_;
};

} // namespace quor::ed
