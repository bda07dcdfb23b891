// Where an entity is read from: its record in the drawing file, or its object when that may differ from the record.
#pragma once

#include "host/db/database.h"
#include "host/gs/shapes/drawn.h"

#include <optional>

namespace quor::gs {

struct Source {
    db::Database& drawing;
    const db::ObjectEntry& entity;
    // The entity's, or that of a part of it; null for an entity without one.
    const dxf::Record* at = nullptr;
    // Where the tags that are not common to all entities begin.
    std::uint64_t bodyBegin = 0;

    [[nodiscard]] const db::DrawingFile& file() const { return drawing.file(); }
    [[nodiscard]] const dxf::Record& record() const { return *at; }
    [[nodiscard]] std::string_view type() const { return file().typeName(entity.type); }
    // Null while nobody opened the entity: its record says all then.
    template <class Data>
    [[nodiscard]] const Data* opened() const {
        return entity.object == nullptr ? nullptr : dynamic_cast<const Data*>(entity.object->hostData().get());
    }
};

// Finds the layers that entities name; those of one layer often follow each other.
class LayerFinder {
public:
    explicit LayerFinder(db::Database& drawing) : drawing_(drawing) {}
    struct Found {
        const db::ObjectEntry* layer = nullptr;
        bool isZero = true;
    };
    [[nodiscard]] Found find(const dxf::Tag& name);
    void forget() { hasLast_ = false; }

private:
    db::Database& drawing_;
    std::string_view last_; // as in the file
    Found found_;
    bool hasLast_ = false;
};

// The look that a record says, and where its own tags begin.
struct Head {
    Look look;
    std::uint64_t bodyBegin = 0;
};
[[nodiscard]] Head readHead(const db::DrawingFile& file, const dxf::Record& record, LayerFinder& layers);
// The look of an entity as it stands in memory; nothing while nobody opened it.
[[nodiscard]] std::optional<Look> lookInMemory(const db::ObjectEntry& entity);

} // namespace quor::gs
