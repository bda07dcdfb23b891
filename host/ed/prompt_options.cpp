#include "host/ed/prompt_options.h"

#include "host/ed/keywords.h"

#include <algorithm>
#include <optional>

namespace quor::ed {

namespace {

constexpr std::size_t kNone = std::wstring_view::npos;

struct Range {
    std::size_t from = 0;
    std::size_t to = 0; // behind the last character
};

// What stands between the last two brackets of a kind.
std::optional<Range> lastBetween(std::wstring_view text, wchar_t open, wchar_t close) {
    const std::size_t end = text.rfind(close);
    const std::size_t start = end == kNone ? kNone : text.rfind(open, end);
    if (start == kNone || start + 1 >= end)
        return std::nullopt;
    return Range{start + 1, end};
}

KeywordList listOf(std::span<const ZrString> keywords) {
    ZrString text;
    for (const ZrString& keyword : keywords)
        text += keyword + L" ";
    return KeywordList(text);
}

// "N" of "名称(N)"; nothing where no letters are given.
std::optional<ZrString> lettersOf(std::wstring_view option) {
    if (!option.ends_with(L')'))
        return std::nullopt;
    const std::optional<Range> letters = lastBetween(option, L'(', L')');
    return letters ? std::optional(ZrString(option.substr(letters->from, letters->to - letters->from))) : std::nullopt;
}

ZrString withoutBlanks(std::wstring_view text) {
    ZrString result(text);
    std::erase(result, L' ');
    return result;
}

// What may be typed for an option, the best first.
std::vector<ZrString> spellings(std::wstring_view option) {
    std::vector<ZrString> found;
    if (std::optional<ZrString> letters = lettersOf(option))
        found.push_back(std::move(*letters));
    found.push_back(withoutBlanks(option));
    if (const ZrString capitals = KeywordSpelling(option).capitals; !capitals.empty())
        found.push_back(capitals);
    return found;
}

class Options {
public:
    Options(std::wstring_view prompt, std::span<const ZrString> keywords)
        : prompt_(prompt), keywords_(keywords), list_(listOf(keywords)) {}

    std::vector<PromptPart> cut() {
        const std::optional<Range> options = lastBetween(prompt_, L'[', L']');
        const std::optional<Range> fallback = lastBetween(prompt_, L'<', L'>');
        const bool isInside = options && fallback && fallback->from > options->from && fallback->to < options->to;
        if (fallback && !isInside && (!options || fallback->from < options->from))
            addDefault(*fallback);
        if (options)
            addOptions(*options);
        if (fallback && !isInside && options && fallback->from > options->to)
            addDefault(*fallback);
        addPlainUpTo(prompt_.size());
        return std::move(parts_);
    }

private:
    void addPlainUpTo(std::size_t end) {
        if (end > at_)
            parts_.push_back({PromptPart::Kind::Plain, ZrString(prompt_.substr(at_, end - at_)), {}});
        at_ = end;
    }

    void addDefault(Range range) {
        addPlainUpTo(range.from);
        parts_.push_back({PromptPart::Kind::Default, ZrString(prompt_.substr(range.from, range.to - range.from)), {}});
        at_ = range.to;
    }

    void addOptions(Range range) {
        const std::wstring_view all = prompt_.substr(range.from, range.to - range.from);
        const auto count = static_cast<std::size_t>(std::count(all.begin(), all.end(), L'/')) + 1;
        std::size_t from = range.from;
        for (std::size_t place = 0; place < count; ++place) {
            const std::size_t end = std::min(prompt_.find(L'/', from), range.to);
            const std::wstring_view option = prompt_.substr(from, end - from);
            if (const std::optional<ZrString> answer = answerFor(option, place, count)) {
                addPlainUpTo(from);
                parts_.push_back({PromptPart::Kind::Option, ZrString(option), *answer});
                at_ = end;
            }
            from = end + 1;
        }
    }

    // Nothing for what is no option: an empty one, or one that no keyword goes with.
    [[nodiscard]] std::optional<ZrString> answerFor(std::wstring_view option, std::size_t place,
                                                    std::size_t count) const {
        const std::vector<ZrString> ways = spellings(option);
        if (keywords_.empty())
            return ways.front().empty() ? std::nullopt : std::optional(ways.front());
        for (const ZrString& way : ways)
            if (list_.match(way) != nullptr)
                return way;
        return count == keywords_.size() ? std::optional(keywords_[place]) : std::nullopt;
    }

    std::wstring_view prompt_;
    std::span<const ZrString> keywords_;
    KeywordList list_;
    std::vector<PromptPart> parts_;
    std::size_t at_ = 0;
};

} // namespace

std::vector<PromptPart> promptParts(std::wstring_view prompt, std::span<const ZrString> keywords) {
    return Options(prompt, keywords).cut();
}

} // namespace quor::ed
