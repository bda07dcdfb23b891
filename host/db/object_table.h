// All objects of a drawing: their places, found by handle, and the handles that are still free.
#pragma once

#include "host/db/handle_index.h"
#include "host/db/object_entry.h"

#include <cstdint>
#include <deque>
#include <vector>

namespace quor::db {

class ObjectTable {
public:
    explicit ObjectTable(Database& database) : database_(database) {}

    // A new place; its address stays the same for the life of the drawing.
    ObjectEntry& add(std::uint64_t handle, ObjectKind kind);
    // The first object with this handle, erased or not, or null. What was added since the last call is indexed then, so
    // that making objects costs nothing here.
    [[nodiscard]] ObjectEntry* find(std::uint64_t handle) const;
    // The same for what is no entity: few in most drawings, so that the first search does not wait for the entities.
    [[nodiscard]] ObjectEntry* findObject(std::uint64_t handle) const;
    [[nodiscard]] std::size_t size() const { return entries_.size(); }

    // Handles are given out from here on.
    void startHandlesAt(std::uint64_t handle) { next_ = handle; }
    // The first of `count` free handles in a row.
    std::uint64_t takeHandles(std::uint64_t count);

    // Remembers that saving has to look at the object.
    void touch(ObjectEntry& entry);
    // In the order in which they were touched first.
    [[nodiscard]] const std::vector<ObjectEntry*>& touched() const { return touched_; }

private:
    Database& database_;
    std::deque<ObjectEntry> entries_;
    std::vector<ObjectEntry*> touched_;
    std::uint64_t next_ = 1;
    std::vector<ObjectEntry*> objects_; // those that are no entities
    mutable HandleIndex byHandle_;
    mutable std::size_t indexed_ = 0; // so many entries are in the index
    mutable HandleIndex objectByHandle_;
    mutable std::size_t indexedObjects_ = 0; // so many of objects_
};

} // namespace quor::db
