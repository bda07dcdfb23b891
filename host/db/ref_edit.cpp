#include "host/db/ref_edit.h"

#include "host/db/block_reference.h"
#include "host/db/data.h"
#include "host/db/database.h"

#include <algorithm>
#include <utility>

namespace quor::db {

namespace {

bool isEmpty(const Block& block) { return std::ranges::all_of(block.entities, &ObjectEntry::erased); }

} // namespace

ZrString RefEdit::blockName() const { return isActive() ? state_->block->name : ZrString(); }

bool RefEdit::holds(const ObjectEntry& entity) const {
    return isActive() && !entity.erased && entity.owner == state_->space->record &&
           entity.handle >= state_->firstHandle;
}

const MovableKind* RefEdit::kindOf(const ObjectEntry& entity) const {
    return movableKind(database_.file().typeName(entity.type));
}

std::optional<RefEditProblem> RefEdit::problemOf(const DrawingFile& file, const BlockReference& reference) {
    if (reference.block == nullptr)
        return RefEditProblem::NoBlock;
    if (reference.block->isLayout)
        return RefEditProblem::SpaceBlock;
    if (isExternal(file, *reference.block))
        return RefEditProblem::ExternalBlock;
    if (reference.isArray)
        return RefEditProblem::Array;
    if (reference.isFlat)
        return RefEditProblem::ZeroScale;
    if (isEmpty(*reference.block))
        return RefEditProblem::EmptyBlock;
    if (reference.block->insertAt == 0)
        return RefEditProblem::BrokenBlock;
    return std::nullopt;
}

std::optional<RefEditProblem> RefEdit::whyNot(const ObjectEntry& entry) const {
    if (isActive())
        return RefEditProblem::AlreadyEditing;
    const std::optional<BlockReference> reference = readBlockReference(database_, entry);
    if (!reference)
        return RefEditProblem::NoReference;
    if (const auto problem = problemOf(database_.file(), *reference))
        return problem;
    return entry.writing || entry.readers > 0 ? std::optional(RefEditProblem::InUse) : std::nullopt;
}

Result<RefEditStart, RefEditProblem> RefEdit::begin(ObjectEntry& entry) {
    if (const auto problem = whyNot(entry))
        return fail(*problem);
    const BlockReference reference = *readBlockReference(database_, entry);
    RefEditStart start;
    std::vector<Copy> copies = planCopies(reference, start.left);
    start.inWorkset = copies.size();

    database_.materialise(entry);
    const std::uint64_t nextHandle = database_.objects().takeHandles(0);
    const Journal::State before = database_.journal().state();
    setState(std::make_shared<State>(
        State{.reference = &entry,
              .wasVisible = static_cast<ZrDbEntity&>(*entry.object).visibility() == ZrDb::kVisible,
              .block = reference.block,
              .space = database_.structure().blockOf(entry.owner),
              .placement = reference.placement,
              .firstHandle = nextHandle,
              .firstNewHandle = nextHandle,
              .copies = {},
              .before = before,
              .begun = {}}));
    appendCopies(std::move(copies));
    showReference(false);
    state_->begun = database_.journal().state();
    return start;
}

// What can be edited of the block, with the values that it gets; the number of what cannot.
std::vector<RefEdit::Copy> RefEdit::planCopies(const BlockReference& reference, std::size_t& left) {
    std::vector<Copy> copies;
    for (ObjectEntry* original : reference.block->entities) {
        if (original->erased)
            continue;
        const MovableKind* const kind = kindOf(*original);
        std::unique_ptr<ZrDbObjectData> values;
        if (kind != nullptr) {
            database_.materialise(*original);
            values = moved(*kind, *original->object->hostData(), reference.placement);
        }
        if (values == nullptr)
            ++left;
        else
            copies.push_back({original, nullptr, kind, std::move(values)});
    }
    return copies;
}

void RefEdit::appendCopies(std::vector<Copy> copies) {
    for (Copy& copy : copies) {
        std::unique_ptr<ZrDbEntity> entity = copy.kind->make();
        entity->hostData() = std::move(copy.asMade);
        copy.entity = &database_.appendEntity(*state_->space, std::move(entity));
        copy.asMade = copy.entity->object->hostData()->clone();
        database_.closeObject(*copy.entity);
    }
    state_->copies = std::move(copies);
    state_->firstNewHandle = database_.objects().takeHandles(0);
}

void RefEdit::setState(std::shared_ptr<State> state) {
    std::shared_ptr<State> before = std::exchange(state_, std::move(state));
    database_.journal().settingChanged(L"REFEDITNAME",
                                       [this, kept = std::move(before)]() mutable { std::swap(state_, kept); });
}

void RefEdit::showReference(bool visible) {
    const ZrDbObjectPointer<ZrDbEntity> reference(ZrDbObjectId(state_->reference), ZrDb::kForWrite, true);
    if (reference)
        reference->setVisibility(visible ? ZrDb::kVisible : ZrDb::kInvisible);
}

} // namespace quor::db
