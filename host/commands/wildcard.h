// Patterns of names: "*" any text, "?" any one character, without regard to case.
#pragma once

#include "host/sys/case_fold.h"

namespace quor::commands {

// Runs in time proportional to the product of the two lengths, whatever the pattern.
[[nodiscard]] inline bool matchesPattern(std::wstring_view text, std::wstring_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    std::size_t star = std::wstring_view::npos; // the last "*", and the text that it stands for so far
    std::size_t taken = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            star = p++;
            taken = t;
        } else if (p < pattern.size() && (pattern[p] == L'?' || foldChar(pattern[p]) == foldChar(text[t]))) {
            ++p;
            ++t;
        } else if (star != std::wstring_view::npos) {
            p = star + 1;
            t = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(L'*', p) == std::wstring_view::npos;
}

} // namespace quor::commands
