// The place of an object in its drawing: what an object id points to.
#pragma once

#include "sdk/db/object.h"

#include <cstdint>
#include <memory>

namespace quor::db {

class Database;

// Where an object belongs, and so how it is read and written.
enum class ObjectKind : std::uint8_t { Object, Entity, TableRecord, Table };

struct ObjectEntry {
    static constexpr std::uint32_t kNoRecord = 0xFFFFFFFF;

    Database* database = nullptr;
    ObjectEntry* owner = nullptr;
    // Null until somebody opens the object.
    std::unique_ptr<ZrDbObject> object;
    std::uint64_t handle = 0;
    // Where it stands in the file it came from: the first of its records and how many (a polyline has its vertices).
    std::uint32_t record = kNoRecord;
    std::uint32_t recordCount = 0;
    // The undo group that keeps its values already; see Journal.
    std::uint32_t keptInGroup = 0;
    std::uint16_t type = 0; // number of its file type name
    std::uint16_t readers = 0;
    ObjectKind kind = ObjectKind::Object;
    bool writing = false;
    // What listeners are to be told when the object is closed.
    bool appendToAnnounce = false;
    bool modifiedInThisOpening = false;
    bool eraseToAnnounce = false;
    bool erased = false;
    // Its values differ from the file it came from (or it never was in one).
    bool changed = false;
    // It is in the list of objects that saving has to look at.
    bool touched = false;

    [[nodiscard]] bool isInFile() const { return record != kNoRecord; }
};

} // namespace quor::db
