// The keyword list of a question and the rule by which an answer is matched with it. Pure.
#pragma once

#include "sdk/sys/string.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quor::ed {

// One spelling of a keyword, prepared for matching.
struct KeywordSpelling {
    KeywordSpelling() = default;
    explicit KeywordSpelling(std::wstring_view word);

    ZrString word;
    ZrString capitals; // its capital letters
    // The first letters of the two, folded, by which most words are told from an answer; 0: there is none.
    wchar_t first = 0;
    wchar_t firstCapital = 0;
    std::size_t shortest = 0; // length of the shortest beginning that holds all its capital letters; 0: it has none
};

class KeywordList {
public:
    KeywordList() = default;
    // "oN oFf _oN oFf": the local words, then from the first word with a leading "_" on the global words in the same
    // order. A local word without a global one is its own.
    explicit KeywordList(std::wstring_view text);

    // The global word (without "_") that the answer stands for, or null. By rank, list order inside a rank:
    // 1 the whole word; 2 exactly its capital letters; 3 a beginning of the word that holds all its capital letters.
    // An answer with a leading "_" is matched with the global words.
    [[nodiscard]] const ZrString* match(std::wstring_view answer) const;

    [[nodiscard]] bool empty() const { return locals_.empty(); }
    // The local words, spelled as in the list.
    [[nodiscard]] const std::vector<ZrString>& words() const { return words_; }
    // What people type for each: its capital letters, or the whole word when it has none.
    [[nodiscard]] std::vector<ZrString> abbreviations() const;

private:
    std::vector<KeywordSpelling> locals_;
    std::vector<KeywordSpelling> globals_;
    std::vector<ZrString> words_;
};

// The same list for the same text without reading it again. A question holds its list as long as it is open: commands
// that run transparently in it ask with lists of their own.
[[nodiscard]] std::shared_ptr<const KeywordList> cachedKeywords(std::wstring_view text);

} // namespace quor::ed
