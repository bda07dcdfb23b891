// The question "select objects" on a command line.

#include "host/db/ref_edit.h"
#include "host/ed/asking.h"
#include "host/ed/pick.h"
#include "host/session.h"
#include "host/sys/visible_text.h"
#include "host/texts/input.h"
#include "sdk/db/database.h"
#include "sdk/ed/get.h"
#include "sdk/ed/selection.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace {

using namespace quor;
using namespace quor::ed;

constexpr const wchar_t* kWords = L"Last Previous ALL Window Add Remove Undo Handle";

// What is selected so far, step by step.
class Picked {
public:
    void add(const ZrDbObjectIdArray& found) {
        Step step{false, {}};
        for (const ZrDbObjectId id : found)
            if (members_.insert(id).second) {
                order_.push_back(id);
                step.ids.push_back(id);
            }
        const std::size_t repeated = found.size() - step.ids.size();
        if (repeated > 0)
            say(texts::kFoundDuplicates, found.size(), repeated, order_.size());
        else if (order_.size() > found.size())
            say(texts::kFoundTotal, found.size(), order_.size());
        else
            say(texts::kFound, found.size());
        keep(std::move(step));
    }

    void remove(const ZrDbObjectIdArray& found) {
        Step step{true, {}};
        for (const ZrDbObjectId id : found)
            if (members_.erase(id) > 0)
                step.ids.push_back(id);
        dropStrangers();
        say(texts::kFoundRemoved, found.size(), step.ids.size(), order_.size());
        keep(std::move(step));
    }

    void undo() {
        if (steps_.empty()) {
            say(texts::kNothingToUndo);
            return;
        }
        const Step step = std::move(steps_.back());
        steps_.pop_back();
        for (const ZrDbObjectId id : step.ids)
            if (!step.removed)
                members_.erase(id);
            else if (members_.insert(id).second)
                order_.push_back(id);
        dropStrangers();
        say(texts::kSelectionUndone, order_.size());
    }

    [[nodiscard]] const ZrDbObjectIdArray& ids() const { return order_; }

private:
    struct Step {
        bool removed;
        ZrDbObjectIdArray ids;
    };

    void keep(Step step) {
        if (!step.ids.empty())
            steps_.push_back(std::move(step));
    }
    void dropStrangers() {
        order_.erase(
            std::remove_if(order_.begin(), order_.end(), [&](ZrDbObjectId id) { return !members_.contains(id); }),
            order_.end());
    }

    ZrDbObjectIdArray order_;
    std::unordered_set<ZrDbObjectId> members_;
    std::vector<Step> steps_;
};

void sayStrangers(const Document& document, std::size_t count) {
    if (count > 0)
        say(texts::kNotInWorkset, count, visibleText(document.drawing().refEdit().blockName()));
}

// What is selected already, as far as it can be.
ZrDbObjectIdArray pickedFirst(const Document& document) {
    ZrDbObjectIdArray picked = zredImpliedSelection();
    const std::size_t strangers = leaveOutStrangers(document, picked);
    if (!picked.empty())
        say(texts::kFound, picked.size());
    sayStrangers(document, strangers);
    return picked;
}

class SelectionLoop {
public:
    SelectionLoop(Session& session, Document& document, const wchar_t* prompt)
        : session_(session), document_(document), prompt_(prompt != nullptr ? prompt : texts::kSelectPrompt.get()) {}

    int run(ZrDbObjectIdArray& ids) {
        while (true) {
            Rules rules;
            rules.wanted = Wanted::Point;
            rules.flags = RSG_OTHER;
            rules.keywords = &words_;
            const ZrString prompt = removing_ ? texts::kRemovePrompt.get() : prompt_;
            const Outcome outcome = Asking(session_, rules, prompt).as(Question::Kind::Selection).run();
            if (std::holds_alternative<Escape>(outcome))
                return RTCAN;
            if (std::holds_alternative<Broken>(outcome))
                return RTERROR;
            if (std::holds_alternative<Enter>(outcome))
                break;
            if (!act(std::get<Reading>(outcome)))
                return RTCAN;
        }
        if (picked_.ids().empty())
            return RTNONE;
        ids = picked_.ids();
        document_.previousSelection = ids;
        return RTNORM;
    }

private:
    // What each keyword does; false for Esc on the way.
    struct Row {
        const wchar_t* word;
        bool (SelectionLoop::*act)();
    };
    static const Row kRows[8];

    bool act(const Reading& reading) {
        if (const auto* point = std::get_if<ZrGePoint3d>(&reading))
            return pickAt(*point);
        if (const auto* text = std::get_if<TextAnswer>(&reading))
            return pickDirectHandle(text->text);
        if (const auto* picked = std::get_if<PickedAnswer>(&reading))
            return takePicked(*picked);
        const std::wstring_view word = std::get<KeywordAnswer>(reading).word;
        const Row* const row =
            std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& r) { return word == r.word; });
        return (this->*row->act)();
    }

    // What was picked on the screen; with Shift it leaves the selection, whatever is going on.
    bool takePicked(const PickedAnswer& picked) {
        const bool before = std::exchange(removing_, removing_ || picked.takesAway);
        const bool goesOn = take(picked.ids);
        removing_ = before;
        return goesOn;
    }
    bool take(ZrDbObjectIdArray found) {
        if (removing_) {
            picked_.remove(found);
            return true;
        }
        const std::size_t strangers = leaveOutStrangers(document_, found);
        picked_.add(found);
        sayStrangers(document_, strangers);
        return true;
    }

    bool pickLast() {
        const ZrDbObjectId last = document_.drawing().lastEntity(document_.database()->currentSpaceId());
        return take(last.isNull() ? ZrDbObjectIdArray() : ZrDbObjectIdArray{last});
    }
    bool pickPrevious() {
        ZrDbObjectIdArray found;
        for (const ZrDbObjectId id : document_.previousSelection)
            if (!id.isErased() && id.entry()->owner == document_.database()->currentSpaceId().entry())
                found.push_back(id);
        return take(found);
    }
    bool pickAll() { return take(entitiesInSight(document_)); }
    bool startAdding() {
        removing_ = false;
        return true;
    }
    bool startRemoving() {
        removing_ = true;
        return true;
    }
    bool undo() {
        picked_.undo();
        return true;
    }

    bool pickWindow() {
        ZrGePoint3d first;
        zredInitGet(RSG_NONULL, nullptr);
        return zredGetPoint(nullptr, texts::kWindowFirst.get(), first) == RTNORM && windowFrom(first);
    }
    bool windowFrom(const ZrGePoint3d& first) {
        ZrGePoint3d second;
        zredInitGet(RSG_NONULL, nullptr);
        return zredGetCorner(first, texts::kWindowSecond.get(), second) == RTNORM &&
               take(entitiesInWindow(document_, first, second));
    }
    // A point beside everything starts a window.
    bool pickAt(const ZrGePoint3d& point) {
        ZrDbObjectIdArray found = entitiesAt(document_, zrdbUcs2Wcs(point));
        return found.empty() ? windowFrom(point) : take(std::move(found));
    }

    bool pickHandle() {
        ZrString text;
        zredInitGet(RSG_NONULL, nullptr);
        return zredGetString(0, texts::kHandlePrompt.get(), text) == RTNORM && takeHandle(text);
    }
    bool pickDirectHandle(const ZrString& text) {
        if (text.front() == L'#')
            return takeHandle(text);
        say(texts::kBadSelection);
        return true;
    }
    bool takeHandle(const ZrString& text) {
        if (const std::optional<ZrDbObjectId> id = entityByHandle(document_, text))
            return take({*id});
        say(texts::kNoSuchHandle, text);
        return true;
    }

    Session& session_;
    Document& document_;
    ZrString prompt_;
    KeywordList words_{kWords};
    Picked picked_;
    bool removing_ = false;
};

const SelectionLoop::Row SelectionLoop::kRows[8] = {
    {L"Last", &SelectionLoop::pickLast},   {L"Previous", &SelectionLoop::pickPrevious},
    {L"ALL", &SelectionLoop::pickAll},     {L"Window", &SelectionLoop::pickWindow},
    {L"Add", &SelectionLoop::startAdding}, {L"Remove", &SelectionLoop::startRemoving},
    {L"Undo", &SelectionLoop::undo},       {L"Handle", &SelectionLoop::pickHandle},
};

} // namespace

int zredSelect(const wchar_t* prompt, ZrDbObjectIdArray& ids) {
    Session& session = Session::current();
    Document* const document = session.documents().current();
    if (document == nullptr)
        return RTFAIL;
    if (const ZrDbObjectIdArray picked = pickedFirst(*document); !picked.empty()) {
        ids = picked;
        document->previousSelection = picked;
        return RTNORM;
    }
    return SelectionLoop(session, *document, prompt).run(ids);
}
