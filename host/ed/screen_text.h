// Where texts begin on a command-line screen. Every front end that shows the command line as text uses this rule.
#pragma once

#include "sdk/sys/string.h"

#include <string_view>

namespace quor {

// Texts of a CAD command line begin with a line break. On a screen they start on a fresh line: where the cursor stands
// at the start of a line already (after an answer, or after a text that ended its line), one leading line break is left
// out.
class ScreenText {
public:
    // What to write for the text.
    [[nodiscard]] std::wstring_view put(std::wstring_view text) {
        if (atLineStart_ && !text.empty() && text.front() == L'\n')
            text.remove_prefix(1);
        if (!text.empty())
            atLineStart_ = text.back() == L'\n';
        return text;
    }
    // The person has pressed Enter (or something took the cursor to a fresh line).
    void answered() { atLineStart_ = true; }
    [[nodiscard]] bool atLineStart() const { return atLineStart_; }

private:
    bool atLineStart_ = true;
};

} // namespace quor
