#include "host/db/object_table.h"

namespace quor::db {

ObjectEntry& ObjectTable::add(std::uint64_t handle, ObjectKind kind) {
    ObjectEntry& entry = entries_.emplace_back();
    entry.database = &database_;
    entry.handle = handle;
    entry.kind = kind;
    if (indexed_ && handle != 0)
        byHandle_.try_emplace(handle, &entry);
    return entry;
}

ObjectEntry* ObjectTable::find(std::uint64_t handle) const {
    if (!indexed_) {
        byHandle_.reserve(entries_.size());
        for (const ObjectEntry& entry : entries_)
            if (entry.handle != 0)
                byHandle_.try_emplace(entry.handle, const_cast<ObjectEntry*>(&entry));
        indexed_ = true;
    }
    const auto found = byHandle_.find(handle);
    return found == byHandle_.end() ? nullptr : found->second;
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
