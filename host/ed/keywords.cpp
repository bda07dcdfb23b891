#include "host/ed/keywords.h"

#include "host/sys/case_fold.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace quor::ed {

namespace {

[[nodiscard]] bool isCapital(wchar_t c) { return foldChar(c) != c; }

[[nodiscard]] wchar_t firstFolded(std::wstring_view text) { return text.empty() ? L'\0' : foldChar(text.front()); }

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

// 1 is the best; kNoRank: the answer, which begins with `first`, does not stand for the word.
constexpr int kNoRank = 4;
int rankOf(const KeywordSpelling& spelling, std::wstring_view answer, wchar_t first) {
    const bool begins = spelling.first == first && startsWithFolded(spelling.word, answer);
    if (begins && answer.size() == spelling.word.size())
        return 1;
    const bool isAsLong = answer.size() == spelling.capitals.size();
    if (isAsLong && spelling.firstCapital == first && equalFolded(spelling.capitals, answer))
        return 2;
    return begins && spelling.shortest > 0 && answer.size() >= spelling.shortest ? 3 : kNoRank;
}

// The lists of a program differ in length, or in letters here and there; the rest is not worth a look at each question.
struct ListHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view list) const noexcept {
        constexpr std::size_t kLooks = 8;
        std::size_t hash = list.size();
        for (std::size_t i = 0; i < list.size(); i += 1 + list.size() / kLooks)
            hash = hash * 31 + static_cast<std::size_t>(list[i]);
        return hash;
    }
};

} // namespace

KeywordSpelling::KeywordSpelling(std::wstring_view text) : word(text), first(firstFolded(text)) {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (isCapital(text[i])) {
            capitals += text[i];
            shortest = i + 1;
        }
    firstCapital = firstFolded(capitals);
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
    const std::vector<KeywordSpelling>& spellings = asGlobal ? globals_ : locals_;
    const wchar_t first = firstFolded(answer);
    const ZrString* best = nullptr;
    int bestRank = kNoRank;
    for (std::size_t i = 0; i < spellings.size() && bestRank > 1; ++i)
        if (const int rank = rankOf(spellings[i], answer, first); rank < bestRank) {
            best = &globals_[i].word;
            bestRank = rank;
        }
    return best;
}

std::vector<ZrString> KeywordList::abbreviations() const {
    std::vector<ZrString> result;
    for (const KeywordSpelling& local : locals_)
        result.push_back(local.capitals.empty() ? local.word : local.capitals);
    return result;
}

std::shared_ptr<const KeywordList> cachedKeywords(std::wstring_view text) {
    // A program asks with a few dozen lists; texts made on the fly must not let the cache grow without end.
    constexpr std::size_t kMost = 256;
    static std::unordered_map<ZrString, std::shared_ptr<const KeywordList>, ListHash, std::equal_to<>> cache;
    if (const auto known = cache.find(text); known != cache.end())
        return known->second;
    if (cache.size() >= kMost)
        cache.clear();
    return cache.emplace(text, std::make_shared<const KeywordList>(text)).first->second;
}

} // namespace quor::ed
