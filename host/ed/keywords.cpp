#include "host/ed/keywords.h"

#include "host/sys/case_fold.h"

#include <functional>
#include <unordered_map>

namespace quor::ed {

namespace {

[[nodiscard]] bool isCapital(wchar_t c) { return foldChar(c) != c; }

std::vector<std::wstring_view> splitWords(std::wstring_view text) {
    std::vector<std::wstring_view> words;
    std::size_t at = 0;
    while ((at = text.find_first_not_of(L" \t", at)) != std::wstring_view::npos) {
        const std::size_t end = std::min(text.find_first_of(L" \t", at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end;
    }
    return words;
}

// The ranks, best first.
using Rank = bool (*)(const KeywordSpelling& spelling, std::wstring_view foldedAnswer);
constexpr Rank kRanks[] = {
    [](const KeywordSpelling& spelling, std::wstring_view answer) { return spelling.folded == answer; },
    [](const KeywordSpelling& spelling, std::wstring_view answer) { return spelling.capitals == answer; },
    [](const KeywordSpelling& spelling, std::wstring_view answer) {
        return spelling.shortest > 0 && answer.size() >= spelling.shortest &&
               std::wstring_view(spelling.folded).substr(0, answer.size()) == answer;
    },
};

} // namespace

KeywordSpelling::KeywordSpelling(std::wstring_view text) : word(text), folded(foldCase(text)) {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (isCapital(text[i])) {
            capitals += foldChar(text[i]);
            shortest = i + 1;
        }
}

KeywordList::KeywordList(std::wstring_view text) {
    bool global = false;
    for (std::wstring_view word : splitWords(text)) {
        const bool marked = word.front() == L'_';
        global = global || marked;
        if (marked)
            word.remove_prefix(1);
        (global ? globals_ : locals_).emplace_back(word);
    }
    for (std::size_t i = globals_.size(); i < locals_.size(); ++i)
        globals_.push_back(locals_[i]);
    for (const KeywordSpelling& local : locals_)
        words_.push_back(local.word);
}

const ZrString* KeywordList::match(std::wstring_view answer) const {
    const bool asGlobal = !answer.empty() && answer.front() == L'_';
    if (asGlobal)
        answer.remove_prefix(1);
    if (answer.empty())
        return nullptr;
    const ZrString folded = foldCase(answer);
    const std::vector<KeywordSpelling>& spellings = asGlobal ? globals_ : locals_;
    for (const Rank matches : kRanks)
        for (std::size_t i = 0; i < spellings.size(); ++i)
            if (matches(spellings[i], folded))
                return &globals_[i].word;
    return nullptr;
}

std::vector<ZrString> KeywordList::abbreviations() const {
    std::vector<ZrString> result;
    for (const KeywordSpelling& local : locals_) {
        ZrString capitals;
        for (const wchar_t c : local.word)
            if (isCapital(c))
                capitals += c;
        result.push_back(capitals.empty() ? local.word : capitals);
    }
    return result;
}

std::shared_ptr<const KeywordList> cachedKeywords(std::wstring_view text) {
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::wstring_view key) const { return std::hash<std::wstring_view>()(key); }
    };
    // A program asks with a few dozen lists; texts made on the fly must not let the cache grow without end.
    constexpr std::size_t kMost = 256;
    static std::unordered_map<ZrString, std::shared_ptr<const KeywordList>, Hash, std::equal_to<>> cache;
    if (const auto known = cache.find(text); known != cache.end())
        return known->second;
    if (cache.size() >= kMost)
        cache.clear();
    return cache.emplace(text, std::make_shared<const KeywordList>(text)).first->second;
}

} // namespace quor::ed
