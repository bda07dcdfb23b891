// Block records: the spaces and blocks of a drawing with their entities.
#pragma once

#include "sdk/db/symbol_table.h"

#include <memory>

class ZrDbEntity;

// Walks the entities of a block in drawing order; erased ones are left out.
class ZrDbBlockTableRecordIterator {
public:
    virtual ~ZrDbBlockTableRecordIterator() = default;
    virtual void start() = 0;
    [[nodiscard]] virtual bool done() const = 0;
    virtual void step() = 0;
    [[nodiscard]] virtual ZrDbObjectId entityId() const = 0;
};

class ZrDbBlockTableRecord : public ZrDbSymbolTableRecord {
public:
    explicit ZrDbBlockTableRecord(std::unique_ptr<ZrDbObjectData> data) : ZrDbSymbolTableRecord(std::move(data)) {}
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    [[nodiscard]] ZrString getName() const override;
    // Whether it is model space or the space of a layout.
    [[nodiscard]] bool isLayout() const;

    // All entities.
    [[nodiscard]] std::unique_ptr<ZrDbBlockTableRecordIterator> newIterator() const;
    // The entities of one class (not of derived ones) only; does not walk the others.
    [[nodiscard]] std::unique_ptr<ZrDbBlockTableRecordIterator> newIterator(const ZrRxClass* entityClass) const;
    [[nodiscard]] std::size_t entityCount(const ZrRxClass* entityClass) const;

    // Whether a light of the block that is not erased has this name, without regard to case; `except` does not count.
    // Costs the same however many lights there are.
    [[nodiscard]] bool hasLightNamed(const ZrString& name, ZrDbObjectId except = {}) const;

    // The first of start, start + 1, … (-32768 follows 32767) that makes no light's name behind the prefix, without
    // regard to case; `start` when all 65,536 are taken. Costs the same however many lights there are.
    [[nodiscard]] short freeLightNumber(const ZrString& prefix, short start) const;

    // Appends an entity, which from then on belongs to the drawing and is open for write. Needs the block open for
    // write.
    Quor::ErrorStatus appendZrDbEntity(ZrDbObjectId& id, ZrDbEntity* entity);
};

class ZrDbBlockTable : public ZrDbSymbolTable {
public:
    explicit ZrDbBlockTable(std::unique_ptr<ZrDbObjectData> data) : ZrDbSymbolTable(std::move(data)) {}
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }
};
