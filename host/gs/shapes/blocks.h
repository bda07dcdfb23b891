// What blocks look like: read once each, shown by any number of references.
#pragma once

#include "host/gs/shapes/pen.h"
#include "host/gs/shapes/source.h"
#include "sdk/ge/matrix3d.h"

#include <cstdint>
#include <memory>
#include <unordered_map>

namespace quor::gs {

// A block as an entity of a block shows it, once or in rows and columns.
struct BlockUse {
    db::Block* block = nullptr;
    Look look; // of the entity
    ZrGeMatrix3d placement;
    std::int64_t columns = 1;
    std::int64_t rows = 1;
    ZrGeVector3d columnStep;
    ZrGeVector3d rowStep;
};

// What some entities show by themselves, and the blocks that they show.
struct Definition {
    Drawn own;
    std::vector<BlockUse> uses;
    bool isBeingShown = false; // a block that shows itself is left out there
};

class BlockLibrary {
public:
    BlockLibrary(db::Database& drawing, Wanted wanted) : drawing_(drawing), wanted_(wanted), layers_(drawing) {}

    // Adds what the entity shows; nothing for one that is invisible or erased.
    void add(Definition& definition, const db::ObjectEntry& entity);
    // What the entities of a block show; valid until forget().
    [[nodiscard]] Definition& definitionOf(const db::Block& block);
    void forget();
    // So much is kept.
    [[nodiscard]] std::size_t primitives() const { return primitives_; }
    [[nodiscard]] Wanted wanted() const { return wanted_; }

private:
    void addReference(Definition& definition, const Source& source, const Look& look);
    void addAttributes(Definition& definition, const Source& source);
    void addOwnBlock(Definition& definition, const Source& source, const Look& look);

    db::Database& drawing_;
    Wanted wanted_;
    LayerFinder layers_;
    std::unordered_map<const db::Block*, std::unique_ptr<Definition>> byBlock_;
    std::size_t primitives_ = 0;
};

} // namespace quor::gs
