#include "host/ed/selection_sets.h"

#include "host/document.h"
#include "host/session.h"
#include "sdk/ed/selection_sets.h"

#include <string_view>
#include <utility>

namespace quor::ed {

void SelectionSet::add(ZrDbObjectId id) {
    if (members_.size() != ids_.size()) {
        members_.reserve(ids_.size());
        for (const ZrDbObjectId member : ids_)
            members_.insert(member);
    }
    if (members_.insert(id))
        ids_.push_back(id);
}

void SelectionSet::removeAllOf(const ZrDbDatabase& drawing) {
    if (std::erase_if(ids_, [&](ZrDbObjectId id) { return id.database() == &drawing; }) > 0)
        members_.clear();
}

SelectionSets::SelectionSets(ZrApDocManager& documents) : documents_(documents) { documents_.addReactor(this); }

SelectionSets::~SelectionSets() { documents_.removeReactor(this); }

std::uint32_t SelectionSets::make(SelectionSet set) {
    sets_.emplace(++last_, std::move(set));
    return last_;
}

SelectionSet* SelectionSets::find(std::uint32_t number) {
    const auto found = sets_.find(number);
    return found == sets_.end() ? nullptr : &found->second;
}

void SelectionSets::documentToBeDestroyed(ZrApDocument& document) {
    for (auto& [number, set] : sets_)
        set.removeAllOf(*document.database());
}

} // namespace quor::ed

namespace {

using quor::Session;
using quor::ed::SelectionSet;

// The set of a name, or null.
SelectionSet* setOf(const ZdsName& name) {
    const bool isSet = name.object.isNull() && name.number != 0 && Session::exists();
    return isSet ? Session::current().selectionSets().find(name.number) : nullptr;
}

ZdsName newSet(SelectionSet set = {}) { return {{}, Session::current().selectionSets().make(std::move(set))}; }

} // namespace

Quor::ErrorStatus zrdbGetZdsName(ZdsName& name, ZrDbObjectId id) {
    if (id.isNull())
        return Quor::eInvalidInput;
    name = {id, 0};
    return Quor::eOk;
}

Quor::ErrorStatus zrdbGetObjectId(ZrDbObjectId& id, const ZdsName& name) {
    if (name.object.isNull())
        return Quor::eInvalidInput;
    id = name.object;
    return Quor::eOk;
}

int zredSSGet(const wchar_t* mode, ZdsName& set) {
    set = {};
    if (mode == nullptr || std::wstring_view(mode) != L"I" || !Session::exists())
        return RTERROR;
    ZrDbObjectIdArray selected = zredImpliedSelection();
    if (selected.empty())
        return RTERROR;
    set = newSet(SelectionSet(std::move(selected)));
    return RTNORM;
}

int zredSSAdd(const ZdsName* entity, const ZdsName* set, ZdsName& result) {
    if (!Session::exists())
        return RTERROR;
    if (entity == nullptr && set == nullptr) {
        result = newSet();
        return RTNORM;
    }
    const ZrDbObjectId id = entity != nullptr ? entity->object : ZrDbObjectId();
    if (id.isNull() || (set != nullptr && setOf(*set) == nullptr))
        return RTERROR;
    result = set != nullptr ? *set : newSet();
    setOf(result)->add(id);
    return RTNORM;
}

int zredSSLength(const ZdsName& set, long& length) {
    const SelectionSet* const found = setOf(set);
    length = found != nullptr ? static_cast<long>(found->ids().size()) : 0;
    return found != nullptr ? RTNORM : RTERROR;
}

int zredSSName(const ZdsName& set, long index, ZdsName& entity) {
    const SelectionSet* const found = setOf(set);
    if (found == nullptr || index < 0 || static_cast<std::size_t>(index) >= found->ids().size())
        return RTERROR;
    entity = {found->ids()[static_cast<std::size_t>(index)], 0};
    return RTNORM;
}

int zredSSFree(const ZdsName& set) {
    const bool isSet = setOf(set) != nullptr && Session::current().selectionSets().free(set.number);
    return isSet ? RTNORM : RTERROR;
}

int zredSSSetFirst(const ZdsName* set) {
    const SelectionSet* const found = set != nullptr ? setOf(*set) : nullptr;
    if (!Session::exists() || (set != nullptr && found == nullptr))
        return RTERROR;
    zredSetImpliedSelection(found != nullptr ? found->ids() : ZrDbObjectIdArray());
    return RTNORM;
}
