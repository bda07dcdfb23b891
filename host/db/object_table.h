// All objects of a drawing: their places, found by handle, and the handles that are still free.
#pragma once

#include "host/db/object_entry.h"

#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

namespace quor::db {

class ObjectTable {
public:
    explicit ObjectTable(Database& database) : database_(database) {}

    // A new place; its address stays the same for the life of the drawing.
    ObjectEntry& add(std::uint64_t handle, ObjectKind kind);
    // The first object with this handle, erased or not, or null. Builds its index on first use.
    [[nodiscard]] ObjectEntry* find(std::uint64_t handle) const;
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
    mutable std::unordered_map<std::uint64_t, ObjectEntry*> byHandle_;
    mutable bool indexed_ = false;
};

} // namespace quor::db
