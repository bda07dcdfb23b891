// Objects that the host knows no more of than what all of their kind have in common. Their tags stay as they came.
#pragma once

#include "host/db/data.h"
#include "sdk/db/block_table.h"
#include "sdk/db/entity.h"
#include "sdk/db/symbol_table.h"

namespace quor::db {

class RawEntity final : public ZrDbEntity {
public:
    RawEntity() : ZrDbEntity(std::make_unique<ZrDbEntityData>()) {}
};

class RawObject final : public ZrDbObject {
public:
    RawObject() : ZrDbObject(std::make_unique<RawData>()) {}
};

class RawTable final : public ZrDbSymbolTable {
public:
    explicit RawTable(std::unique_ptr<ZrDbObjectData> data) : ZrDbSymbolTable(std::move(data)) {}
};

struct RawTableRecordData : Cloned<RawTableRecordData, ZrDbObjectData> {
    ZrString name;
};

class RawTableRecord final : public ZrDbSymbolTableRecord {
public:
    explicit RawTableRecord(const ZrString& name) : ZrDbSymbolTableRecord(std::make_unique<RawTableRecordData>()) {
        static_cast<RawTableRecordData&>(*data_).name = name;
    }
    [[nodiscard]] ZrString getName() const override { return static_cast<const RawTableRecordData&>(*data_).name; }
};

} // namespace quor::db
