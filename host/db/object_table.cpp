#include "host/db/object_table.h"

namespace quor::db {

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
        byHandle_.add(const_cast<ObjectEntry&>(entries_[indexed_]));
    return byHandle_.find(handle);
}

ObjectEntry* ObjectTable::findObject(std::uint64_t handle) const {
    if (indexedObjects_ == 0)
        objectByHandle_.reserve(objects_.size());
    for (; indexedObjects_ < objects_.size(); ++indexedObjects_)
        objectByHandle_.add(*objects_[indexedObjects_]);
    return objectByHandle_.find(handle);
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
