// Editing a block in place, through one of its references: what the host can move stands for the time as copies where
// the reference shows it. The copies and what is drawn beside them are the working set; saving takes it back into the
// block.
#pragma once

#include "host/db/journal.h"
#include "host/db/movable_kind.h"
#include "host/db/structure.h"
#include "host/sys/result.h"

#include <memory>
#include <optional>
#include <vector>

namespace quor::db {

struct BlockReference;

// Why a block cannot be edited, or the editing not be ended.
enum class RefEditProblem {
    AlreadyEditing,
    NoReference, // the entity is none
    NoBlock,     // the drawing has no block of that name
    SpaceBlock,  // model space, or a layout
    ExternalBlock,
    Array,
    ZeroScale,
    EmptyBlock,
    BrokenBlock, // its end is missing in the file, so that nothing can be added
    InUse,       // an object is open
    TooFar,      // a point would lie beyond all numbers in the block
};

// Why a working set is not saved; for a point that lies too far away, the object that it belongs to.
struct RefEditObstacle {
    RefEditProblem problem;
    const ObjectEntry* object = nullptr;
};

// How many objects there are to edit, and how many others stay in the block as they are.
struct RefEditStart {
    std::size_t inWorkset = 0;
    std::size_t left = 0;
};

// How many objects of the block were changed, and so on.
struct RefEditResult {
    std::size_t changed = 0;
    std::size_t added = 0;
    std::size_t erased = 0;
};

// What is being edited in a drawing. Everything is part of the open undo group: undo goes back into an editing that was
// ended, and out of one that was begun.
class RefEdit {
public:
    explicit RefEdit(Database& database) : database_(database) {}

    [[nodiscard]] bool isActive() const { return state_ != nullptr; }
    // The block that is being edited; empty when none is.
    [[nodiscard]] ZrString blockName() const;
    // Whether the entity belongs to the working set: it is there, in the space of the reference, and was made since
    // the editing began.
    [[nodiscard]] bool holds(const ObjectEntry& entity) const;

    // The problem that begin() would have with a reference.
    [[nodiscard]] std::optional<RefEditProblem> whyNot(const ObjectEntry& reference) const;
    // Makes the working set and hides the reference.
    Result<RefEditStart, RefEditProblem> begin(ObjectEntry& reference);

    // For an editing that is going on. Both erase the working set and show the reference again. What was not changed
    // keeps its values in the block as they are, to the last digit; a problem changes nothing. When nothing was done
    // since the editing began, the drawing is not modified by it.
    Result<RefEditResult, RefEditObstacle> save();
    // Leaves the block as it was.
    Result<void, RefEditProblem> discard();

private:
    struct Copy {
        ObjectEntry* original;
        ObjectEntry* entity;
        const MovableKind* kind;
        std::unique_ptr<ZrDbObjectData> asMade;
    };
    struct State {
        ObjectEntry* reference;
        bool wasVisible;
        Block* block;
        Block* space;
        ZrGeMatrix3d placement;
        // Handles are given out in rising order: what is made while editing has these or higher ones.
        std::uint64_t firstHandle;
        std::uint64_t firstNewHandle; // behind the copies
        std::vector<Copy> copies;
        // Of the drawing.
        Journal::State before;
        Journal::State begun;
    };
    // What saving does to the block.
    struct Plan {
        struct Change {
            ObjectEntry* original;
            std::unique_ptr<ZrDbObjectData> values;
        };
        struct Addition {
            const MovableKind* kind;
            std::unique_ptr<ZrDbObjectData> values;
        };
        std::vector<Change> changes;
        std::vector<Addition> additions;
        std::vector<ObjectEntry*> erasures;
    };

    [[nodiscard]] const MovableKind* kindOf(const ObjectEntry& entity) const;
    static std::optional<RefEditProblem> problemOf(const DrawingFile& file, const BlockReference& reference);
    std::vector<Copy> planCopies(const BlockReference& reference, std::size_t& left);
    void appendCopies(std::vector<Copy> copies);
    void setState(std::shared_ptr<State> state);
    void showReference(bool visible);

    // Those of the working set from a handle on, in drawing order.
    [[nodiscard]] std::vector<ObjectEntry*> workset(std::uint64_t from) const;
    Result<Plan, RefEditObstacle> plan() const;
    [[nodiscard]] std::unique_ptr<ZrDbObjectData> writtenBack(const Copy& copy, const ZrGeMatrix3d& back) const;
    [[nodiscard]] bool isFree(const Plan& plan) const;
    [[nodiscard]] bool isWorksetFree() const;
    void carryOut(Plan plan);
    void replaceValues(ObjectEntry& entity, std::unique_ptr<ZrDbObjectData> values);
    [[nodiscard]] bool isUntouched() const;
    void finish();

    Database& database_;
    std::shared_ptr<State> state_; // shared with the journal, which keeps it for undo and redo
};

} // namespace quor::db
