#include "host/ed/completion.h"

#include "host/sys/case_fold.h"

#include <algorithm>

namespace quor::ed {

namespace {

constexpr std::wstring_view kMarks = L"'._";
constexpr std::wstring_view kBlanks = L" \t";

// Command names keep the marks that were typed in front of them; behind "_" only global names count.
std::vector<ZrString> commandCandidates(std::wstring_view word, const CompletionSource& source) {
    const std::size_t markCount = std::min(word.find_first_not_of(kMarks), word.size());
    const ZrString marks(word.substr(0, markCount));
    const std::wstring_view name = word.substr(markCount);
    const bool globalOnly = marks.find(L'_') != ZrString::npos;
    std::vector<ZrString> found;
    for (const CommandName& command : source.commands) {
        if (startsWithFolded(command.local, name) && !globalOnly)
            found.push_back(marks + command.local);
        else if (startsWithFolded(command.global, name))
            found.push_back(marks + command.global);
    }
    for (const ZrString& other : source.otherNames)
        if (!name.empty() && startsWithFolded(other, name))
            found.push_back(marks + other);
    return found;
}

std::vector<ZrString> keywordCandidates(std::wstring_view word, std::span<const ZrString> keywords) {
    std::vector<ZrString> found;
    for (const ZrString& keyword : keywords)
        if (startsWithFolded(keyword, word))
            found.push_back(keyword);
    return found;
}

// A path is one that says so: with a slash, or with a dot in front.
bool looksLikePath(std::wstring_view word) {
    return word.find(L'/') != std::wstring_view::npos || word.starts_with(L".") || word.starts_with(L"~");
}

std::vector<ZrString> pathCandidates(std::wstring_view word, const FolderLister& list) {
    const std::size_t slash = word.rfind(L'/');
    const std::size_t nameAt = slash == std::wstring_view::npos ? 0 : slash + 1;
    const ZrString folder(word.substr(0, nameAt));
    const std::wstring_view name = word.substr(nameAt);
    std::vector<ZrString> found;
    for (const ZrString& entry : list(folder)) {
        const bool hidden = entry.starts_with(L".") && !name.starts_with(L".");
        if (!hidden && entry.starts_with(name))
            found.push_back(folder + entry);
    }
    return found;
}

std::vector<ZrString> candidatesFor(std::wstring_view word, bool isFirstWord, const CompletionSource& source) {
    if (source.atCommandPrompt)
        return isFirstWord ? commandCandidates(word, source) : std::vector<ZrString>();
    if (word.starts_with(L"'") && isFirstWord)
        return commandCandidates(word, source);
    if (source.acceptsText && source.files && looksLikePath(word))
        return pathCandidates(word, source.files);
    return keywordCandidates(word, source.keywords);
}

ZrString commonBeginning(const std::vector<ZrString>& candidates) {
    if (candidates.empty())
        return {};
    const ZrString& first = candidates.front();
    std::size_t length = first.size();
    for (const ZrString& candidate : candidates) {
        std::size_t same = 0;
        while (same < std::min(length, candidate.size()) && foldChar(candidate[same]) == foldChar(first[same]))
            ++same;
        length = same;
    }
    return first.substr(0, length);
}

} // namespace

Completion complete(std::wstring_view typed, const CompletionSource& source) {
    const std::size_t blank = source.acceptsBlanks ? std::wstring_view::npos : typed.find_last_of(kBlanks);
    Completion completion;
    completion.from = blank == std::wstring_view::npos ? 0 : blank + 1;
    std::vector<ZrString> found = candidatesFor(typed.substr(completion.from), completion.from == 0, source);
    std::sort(found.begin(), found.end(), FoldedLess());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    completion.common = commonBeginning(found);
    completion.candidates = std::move(found);
    return completion;
}

} // namespace quor::ed
