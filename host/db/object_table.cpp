#include "host/db/object_table.h"

namespace quor::db {

namespace {

using Index = std::unordered_map<std::uint64_t, ObjectEntry*>;

void addTo(Index& index, ObjectEntry& entry) {
    if (entry.handle != 0)
        index.try_emplace(entry.handle, &entry);
}

ObjectEntry* lookUp(const Index& index, std::uint64_t handle) {
    const auto found = index.find(handle);
    return found == index.end() ? nullptr : found->second;
}

} // namespace

ObjectEntry& ObjectTable::add(std::uint64_t handle, ObjectKind kind) {
    ObjectEntry& entry = entries_.emplace_back();
    entry.database = &database_;
    entry.handle = handle;
    entry.kind = kind;
    if (kind != ObjectKind::Entity)
        objects_.push_back(&entry);
    return entry;
}

ObjectEntry* ObjectTable::find(std::uint64_t handle) const {
    if (indexed_ == 0)
        byHandle_.reserve(entries_.size());
    for (; indexed_ < entries_.size(); ++indexed_)
        addTo(byHandle_, const_cast<ObjectEntry&>(entries_[indexed_]));
    return lookUp(byHandle_, handle);
}

ObjectEntry* ObjectTable::findObject(std::uint64_t handle) const {
    for (; indexedObjects_ < objects_.size(); ++indexedObjects_)
        addTo(objectByHandle_, *objects_[indexedObjects_]);
    return lookUp(objectByHandle_, handle);
}

std::uint64_t ObjectTable::takeHandles(std::uint64_t count) {
    const std::uint64_t first = next_;
    next_ += count;
    return first;
}

void ObjectTable::touch(ObjectEntry& entry) {
    if (entry.touched)
        return;
    entry.touched = true;
    touched_.push_back(&entry);
}

} // namespace quor::db
