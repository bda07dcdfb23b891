// Makes objects of the records of a drawing file.
#pragma once

#include "host/db/object_entry.h"
#include "host/dxf/layout.h"

#include <memory>

namespace quor::dxf {
struct Record;
}

namespace quor::db {

class Database;
struct FieldGroup;

// The object of an entry, its values read from its record where it has one.
[[nodiscard]] std::unique_ptr<ZrDbObject> readObject(Database& database, ObjectEntry& entry);

// The class of which an entity of the file is, or will be when it is made.
[[nodiscard]] ZrRxClass* entityClass(const Database& database, const ObjectEntry& entry);

// The values of an entity, a light or a layer as they stand in the file.
[[nodiscard]] std::unique_ptr<ZrDbObjectData> readData(Database& database, const ObjectEntry& entry);

} // namespace quor::db
