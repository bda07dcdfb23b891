#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/document.h"
#include "host/session.h"
#include "host/texts/commands.h"

#include <algorithm>
#include <limits>

namespace quor::commands {

namespace {

constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();
constexpr std::size_t kNamesShown = 8;
constexpr int kMostSteps = 32767;

struct Direction {
    std::optional<ZrString> (db::Journal::*step)();
    const Text& nothing;
    const Text& done;
};
const Direction kUndo{&db::Journal::undo, texts::kNoCommandToUndo, texts::kUndone};
const Direction kRedo{&db::Journal::redo, texts::kNoCommandToRedo, texts::kRedone};

// Takes `count` steps, fewer when there are no more, and says which commands they were.
int go(Document& document, const Direction& direction, std::size_t count) {
    db::Journal& journal = document.drawing().journal();
    std::size_t steps = 0;
    ZrString names;
    for (; steps < count; ++steps) {
        const std::optional<ZrString> name = (journal.*direction.step)();
        if (!name)
            break;
        if (steps < kNamesShown)
            names += (steps == 0 ? L"" : L", ") + *name;
    }
    if (steps == 0)
        return failWith(direction.nothing);
    if (steps > kNamesShown)
        names += L", …";
    // Marks above the point that was reached mark nothing any more.
    std::erase_if(document.undoMarks, [&](std::size_t mark) { return mark > journal.undoDepth(); });
    say(direction.done, steps, names);
    return RTNORM;
}

// Undoes to the last mark, and takes the mark away.
int goBack(Document& document) {
    if (document.undoMarks.empty())
        return failWith(texts::kNoUndoMark);
    const std::size_t mark = document.undoMarks.back();
    document.undoMarks.pop_back();
    const std::size_t depth = document.drawing().journal().undoDepth();
    return depth > mark ? go(document, kUndo, depth - mark) : failWith(texts::kNothingSinceMark);
}

int setMark(Document& document) {
    document.undoMarks.push_back(document.drawing().journal().undoDepth());
    say(texts::kUndoMarked);
    return RTNORM;
}

// The number that was answered; Enter is one. Nothing when a keyword or Esc was (`result`).
std::optional<std::size_t> askCount(const Text& prompt, const wchar_t* keywords, int& result) {
    armKeywords(0, keywords);
    int count = 1;
    result = zredGetIntInRange(prompt.get(), 1, kMostSteps, count);
    if (result == RTNONE)
        return std::size_t{1};
    if (result == RTNORM)
        return static_cast<std::size_t>(count);
    return std::nullopt;
}

ZrString answeredKeyword() {
    ZrString keyword;
    zredGetInput(keyword);
    return keyword;
}

} // namespace

int undoOne(Session& session) { return go(*session.documents().current(), kUndo, 1); }

int undoSeveral(Session& session) {
    Document& document = *session.documents().current();
    int result = RTNORM;
    if (const auto count = askCount(texts::kAskUndo, L"All Mark Back", result))
        return go(document, kUndo, *count);
    if (result != RTKWORD)
        return result;
    const ZrString keyword = answeredKeyword();
    if (keyword == L"All")
        return go(document, kUndo, kAll);
    return keyword == L"Mark" ? setMark(document) : goBack(document);
}

int redo(Session& session) {
    Document& document = *session.documents().current();
    if (document.drawing().journal().redoDepth() == 0)
        return failWith(texts::kNoCommandToRedo);
    int result = RTNORM;
    if (const auto count = askCount(texts::kAskRedo, L"All", result))
        return go(document, kRedo, *count);
    return result == RTKWORD ? go(document, kRedo, kAll) : result;
}

} // namespace quor::commands
