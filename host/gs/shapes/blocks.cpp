#include "host/gs/shapes/blocks.h"

#include "host/db/block_reference.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

void BlockLibrary::add(Definition& definition, const db::ObjectEntry& entity) {
    if (entity.erased || (!entity.isInFile() && entity.object == nullptr))
        return;
    const std::string_view type = drawing_.file().typeName(entity.type);
    const Show show = showOf(type);
    const bool isReference = type == "INSERT";
    const bool isDimension = type == "DIMENSION";
    if (show == nullptr && !isReference && !isDimension)
        return;
    const Head head = readHead(drawing_, entity, layers_);
    if (!head.look.visible)
        return;
    const Source source{drawing_, entity, head.bodyBegin};
    if (show != nullptr) {
        Pen pen(definition.own, wanted_);
        pen.take(head.look);
        show(source, pen);
    } else if (entity.isInFile()) {
        isReference ? addReference(definition, source, head.look) : addDimension(definition, source, head.look);
    }
}

void BlockLibrary::addReference(Definition& definition, const Source& source, const Look& look) {
    const Values<10, 20, 30, 41, 42, 43, 44, 45, 50, 70, 71, 210, 220, 230> numbers(source);
    if (numbers.isBroken())
        return;
    const auto reference = db::readBlockReference(drawing_, source.entity);
    if (reference && reference->block != nullptr && !reference->block->isLayout)
        definition.uses.push_back({reference->block, look, reference->placement, reference->columns, reference->rows,
                                   reference->columnStep, reference->rowStep});
}

// What a dimension looks like stands in a block made for it, in the coordinates of the world.
void BlockLibrary::addDimension(Definition& definition, const Source& source, const Look& look) {
    static constexpr int kBlockName = 2;
    static constexpr dxf::CodeSet kWanted{kBlockName};
    BodyTags tags(source, kWanted);
    if (!tags.next())
        return;
    db::Block* const block = drawing_.structure().findBlock(source.file().text(tags.tag()));
    if (block != nullptr && !block->isLayout) {
        BlockUse& use = definition.uses.emplace_back();
        use.block = block;
        use.look = look;
    }
}

Definition& BlockLibrary::definitionOf(const db::Block& block) {
    std::unique_ptr<Definition>& place = byBlock_[&block];
    if (place == nullptr) {
        place = std::make_unique<Definition>();
        for (const db::ObjectEntry* entity : block.entities)
            add(*place, *entity);
        primitives_ += place->own.primitives() + place->own.snaps.size() + place->uses.size();
    }
    return *place;
}

void BlockLibrary::forget() {
    byBlock_.clear();
    layers_.forget();
    primitives_ = 0;
}

} // namespace quor::gs
