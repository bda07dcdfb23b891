#include "host/props/sheet.h"

#include "host/document.h"
#include "host/props/change.h"
#include "host/props/common_change.h"
#include "host/props/drawing_settings.h"
#include "host/props/kinds.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/properties.h"

#include <algorithm>

namespace quor::props {

Sheet::Sheet(Session& session) : session_(session), watch_([this] { becomeStale(); }) {}

void Sheet::becomeStale() {
    if (!std::exchange(isStale_, true) && told_)
        told_();
}

const std::vector<Kind>& Sheet::kinds() {
    refresh();
    return kinds_;
}

std::size_t Sheet::chosenKind() {
    refresh();
    return chosen_;
}

void Sheet::chooseKind(std::size_t kind) {
    refresh();
    if (kind >= kinds_.size() || kind == chosen_)
        return;
    chosen_ = kind;
    chosenName_ = kinds_[kind].name;
    ++showing_;
    readRows();
}

const std::vector<Row>& Sheet::rows() {
    refresh();
    return rows_;
}

std::size_t Sheet::showing() {
    refresh();
    return showing_;
}

bool Sheet::isWorld() {
    constexpr short kWorld = 1;
    return session_.variables().number(L"WORLDUCS", kWorld) == kWorld;
}

bool Sheet::isEditable() { return canChange(session_); }

void Sheet::refresh() {
    if (!std::exchange(isStale_, false))
        return;
    ZrDbObjectIdArray selected = zredImpliedSelection();
    const Document* const document = session_.documents().current();
    if (selected != selected_ || document != document_)
        ++showing_;
    selected_ = std::move(selected);
    document_ = document;
    sortByKind();
    watch_.setObjects(selected_);
    readRows();
}

void Sheet::sortByKind() {
    objects_.clear();
    for (const ZrDbObjectId id : selected_) {
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        if (!entity)
            continue;
        const ZrString name = kindName(*entity);
        auto known = std::ranges::find(objects_, name,
                                       [](const Objects& objects) -> const ZrString& { return objects.kind.name; });
        if (known == objects_.end())
            known = objects_.insert(known, Objects{.kind = {.name = name, .text = {}, .count = 0}, .ids = {}});
        known->ids.push_back(id);
    }
    if (objects_.size() != 1)
        objects_.insert(objects_.begin(), Objects{.kind = {}, .ids = selected_});
    kinds_.clear();
    for (Objects& objects : objects_) {
        Kind& kind = objects.kind;
        kind.count = objects.ids.size();
        kind.text = kind.name.empty() ? fill(texts::kEverySelected, kind.count)
                                      : fill(texts::kSelectedOfKind, kind.name, kind.count);
        if (kind.count == 0)
            kind.text = (session_.documents().current() ? texts::kNothingSelected : texts::kNoOpenDrawing).get();
        kinds_.push_back(kind);
    }
    const auto same = std::ranges::find(kinds_, chosenName_, &Kind::name);
    chosen_ = same == kinds_.end() ? 0 : static_cast<std::size_t>(same - kinds_.begin());
}

void Sheet::readRows() {
    rows_.clear();
    common_.clear();
    Document* const document = session_.documents().current();
    if (document == nullptr)
        return;
    if (selected_.empty()) {
        rows_ = drawingRows(session_);
        return;
    }
    context_ = contextOf(document->drawing(), shown().size());
    common_ = readCommon(shown(), context_);
    for (const Common& common : common_)
        rows_.push_back(rowOf(common, context_));
}

Refusal Sheet::set(std::string_view id, const ZrString& typed) {
    if (isStale_ && selected_ != zredImpliedSelection())
        return texts::kRowIsGone.get();
    refresh();
    if (session_.documents().current() != nullptr && selected_.empty())
        return setDrawingRow(session_, id, typed);
    const auto common = std::ranges::find(common_, id, [](const Common& each) { return each.property->id; });
    return common == common_.end() ? Refusal(texts::kRowIsGone.get()) : setShown(*common, typed);
}

// Copies: listeners may have the rows read anew meanwhile.
Refusal Sheet::setShown(const Common& common, const ZrString& typed) {
    const ZrDbObjectIdArray ids = shown();
    return changeCommon(ids, Common(common), typed, Context(context_), [this](const std::function<Refusal()>& write) {
        return makeChange(session_, L"PROPERTIES", write);
    });
}

} // namespace quor::props
