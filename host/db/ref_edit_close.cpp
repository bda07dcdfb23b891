// How an editing in place ends: what goes back into the block.
#include "host/db/ref_edit.h"

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/light_names.h"

#include <algorithm>

namespace quor::db {

namespace {

bool isClosed(const ObjectEntry& entry) { return !entry.writing && entry.readers == 0; }

void erase(ObjectEntry& entry) {
    const ZrDbObjectPointer<ZrDbEntity> entity(ZrDbObjectId(&entry), ZrDb::kForWrite);
    if (entity)
        entity->erase();
}

// Points that were not changed take the values of the original again, which going there and back has rounded.
void keepPoints(const MovableKind& kind, ZrDbObjectData& result, const ZrDbObjectData& original,
                const ZrDbObjectData& asMade, const ZrDbObjectData& now) {
    const std::unique_ptr<ZrDbObjectData> copies[] = {original.clone(), asMade.clone(), now.clone()};
    const std::vector<ZrGePoint3d*> results = kind.points(result);
    const std::vector<ZrGePoint3d*> originals = kind.points(*copies[0]);
    const std::vector<ZrGePoint3d*> before = kind.points(*copies[1]);
    const std::vector<ZrGePoint3d*> after = kind.points(*copies[2]);
    for (std::size_t i = 0; i < results.size(); ++i)
        if (*before[i] == *after[i])
            *results[i] = *originals[i];
}

} // namespace

std::vector<ObjectEntry*> RefEdit::workset(std::uint64_t from) const {
    const std::vector<ObjectEntry*>& all = state_->space->entities;
    const auto isOlder = [&](const ObjectEntry* entity) { return entity->handle < from; };
    const auto begin = std::find_if(all.rbegin(), all.rend(), isOlder).base();
    std::vector<ObjectEntry*> found;
    std::copy_if(begin, all.end(), std::back_inserter(found),
                 [](const ObjectEntry* entity) { return !entity->erased; });
    return found;
}

Result<RefEdit::Plan, RefEditObstacle> RefEdit::plan() const {
    const ZrGeMatrix3d back = state_->placement.inverse();
    Plan plan;
    for (const Copy& copy : state_->copies) {
        if (copy.entity->erased) {
            plan.erasures.push_back(copy.original);
            continue;
        }
        if (sameValues(*copy.kind, *copy.asMade, *copy.entity->object->hostData(), database_))
            continue;
        plan.changes.push_back({copy.original, writtenBack(copy, back)});
        if (plan.changes.back().values == nullptr)
            return fail(RefEditObstacle{RefEditProblem::TooFar, copy.entity});
    }
    for (const ObjectEntry* entity : workset(state_->firstNewHandle)) {
        const MovableKind* const kind = kindOf(*entity);
        if (kind == nullptr)
            continue;
        plan.additions.push_back({kind, moved(*kind, *entity->object->hostData(), back)});
        if (plan.additions.back().values == nullptr)
            return fail(RefEditObstacle{RefEditProblem::TooFar, entity});
    }
    return plan;
}

// The values of a copy as the original is to have them; null when a point lies too far away.
std::unique_ptr<ZrDbObjectData> RefEdit::writtenBack(const Copy& copy, const ZrGeMatrix3d& back) const {
    const ZrDbObjectData& original = *copy.original->object->hostData();
    const ZrDbObjectData& now = *copy.entity->object->hostData();
    std::unique_ptr<ZrDbObjectData> result = moved(*copy.kind, now, back);
    if (result == nullptr)
        return nullptr;
    keepPoints(*copy.kind, *result, original, *copy.asMade, now);
    auto& entity = as<ZrDbEntityData>(*result);
    if (entity.layer == as<ZrDbEntityData>(*copy.asMade).layer) {
        entity.layer = as<ZrDbEntityData>(original).layer;
        entity.missingLayer = as<ZrDbEntityData>(original).missingLayer;
    }
    if (auto* light = dynamic_cast<ZrDbLightData*>(result.get())) {
        light->dictionaryHandle = as<ZrDbLightData>(original).dictionaryHandle;
        light->photometryHandle = as<ZrDbLightData>(original).photometryHandle;
    }
    return result;
}

bool RefEdit::isWorksetFree() const {
    return isClosed(*state_->reference) &&
           std::ranges::all_of(workset(state_->firstHandle),
                               [](const ObjectEntry* entity) { return isClosed(*entity); });
}

bool RefEdit::isFree(const Plan& plan) const {
    return isWorksetFree() &&
           std::ranges::all_of(plan.changes, [](const Plan::Change& change) { return isClosed(*change.original); }) &&
           std::ranges::all_of(plan.erasures, [](const ObjectEntry* entity) { return isClosed(*entity); });
}

Result<RefEditResult, RefEditObstacle> RefEdit::save() {
    Result<Plan, RefEditObstacle> changes = plan();
    if (!changes)
        return fail(changes.error());
    if (!isFree(*changes))
        return fail(RefEditObstacle{RefEditProblem::InUse});
    const RefEditResult result{changes->changes.size(), changes->additions.size(), changes->erasures.size()};
    carryOut(std::move(changes).value());
    finish();
    return result;
}

Result<void, RefEditProblem> RefEdit::discard() {
    if (!isWorksetFree())
        return fail(RefEditProblem::InUse);
    finish();
    return {};
}

void RefEdit::carryOut(Plan plan) {
    for (Plan::Change& change : plan.changes)
        replaceValues(*change.original, std::move(change.values));
    for (ObjectEntry* original : plan.erasures)
        erase(*original);
    for (Plan::Addition& addition : plan.additions) {
        std::unique_ptr<ZrDbEntity> entity = addition.kind->make();
        entity->hostData() = std::move(addition.values);
        database_.closeObject(database_.appendEntity(*state_->block, std::move(entity)));
    }
}

void RefEdit::replaceValues(ObjectEntry& entry, std::unique_ptr<ZrDbObjectData> values) {
    const ZrDbObjectPointer<ZrDbEntity> entity(ZrDbObjectId(&entry), ZrDb::kForWrite, true);
    database_.journal().aboutToModify(entry);
    const LightNames::Renaming renaming(entry);
    entity->hostData() = std::move(values);
    if (auto* light = dynamic_cast<ZrDbLightData*>(entity->hostData().get()))
        database_.reservePhotometry(*light);
}

// Whether nothing was done in the drawing since the editing began.
bool RefEdit::isUntouched() const {
    return database_.journal().state() == state_->begun && state_->before.group != state_->begun.group;
}

void RefEdit::finish() {
    const bool untouched = isUntouched();
    const Journal::State before = state_->before;
    for (ObjectEntry* entity : workset(state_->firstHandle))
        erase(*entity);
    showReference(state_->wasVisible);
    setState(nullptr);
    if (untouched)
        database_.journal().ledBackTo(before);
}

} // namespace quor::db
