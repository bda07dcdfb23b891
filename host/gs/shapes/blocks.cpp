#include "host/gs/shapes/blocks.h"

#include "host/db/block_reference.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <algorithm>
#include <array>

namespace quor::gs {

namespace {

// Kinds that come with a block of their own, in which stands what they look like.
constexpr std::array<std::string_view, 4> kWithOwnBlock{"ACAD_TABLE", "ARC_DIMENSION", "DIMENSION",
                                                        "LARGE_RADIAL_DIMENSION"};

// A table's block begins at its corner and goes along its rows; that of a dimension is in the coordinates of the world.
ZrGeMatrix3d ownBlockPlacement(const Source& source) {
    ZrGeMatrix3d placement;
    if (source.type() != "ACAD_TABLE")
        return placement;
    const Values<10, 20, 30, 11, 21, 31, 210, 220, 230> values(source);
    const ZrGeVector3d normal = ZrGeVector3d(values.real<210>(), values.real<220>(), values.real<230>(1)).normal();
    const ZrGeVector3d row = values.has<11>() ? values.point<11>().asVector().normal() : ZrGeVector3d::kXAxis;
    return placement.setCoordSystem(values.point<10>(), row, normal.crossProduct(row), normal);
}

} // namespace

void BlockLibrary::add(Definition& definition, const db::ObjectEntry& entity) {
    if (entity.erased || (!entity.isInFile() && entity.object == nullptr))
        return;
    const std::string_view type = drawing_.file().typeName(entity.type);
    const Show show = showOf(type);
    const bool isReference = type == "INSERT";
    const bool hasOwnBlock = std::ranges::find(kWithOwnBlock, type) != kWithOwnBlock.end();
    if (show == nullptr && !isReference && !hasOwnBlock)
        return;
    const db::DrawingFile& file = drawing_.file();
    const dxf::Record* const record = entity.isInFile() ? &file.record(entity.record) : nullptr;
    Head head = record == nullptr ? Head() : readHead(file, *record, layers_);
    head.look = lookInMemory(entity).value_or(head.look);
    if (!head.look.visible)
        return;
    const Source source{drawing_, entity, record, head.bodyBegin};
    if (show != nullptr) {
        Pen pen(definition.own, wanted_);
        pen.take(head.look);
        show(source, pen);
    } else if (record != nullptr) {
        isReference ? addReference(definition, source, head.look) : addOwnBlock(definition, source, head.look);
    }
}

void BlockLibrary::addReference(Definition& definition, const Source& source, const Look& look) {
    const Values<10, 20, 30, 41, 42, 43, 44, 45, 50, 70, 71, 210, 220, 230> numbers(source);
    if (numbers.isBroken())
        return;
    addAttributes(definition, source);
    const auto reference = db::readBlockReference(drawing_, source.entity);
    if (reference && reference->block != nullptr && !reference->block->isLayout)
        definition.uses.push_back({reference->block, look, reference->placement, reference->columns, reference->rows,
                                   reference->columnStep, reference->rowStep});
}

void BlockLibrary::addOwnBlock(Definition& definition, const Source& source, const Look& look) {
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
        use.placement = ownBlockPlacement(source);
    }
}

// They stand beside the reference, not in the block.
void BlockLibrary::addAttributes(Definition& definition, const Source& source) {
    const db::DrawingFile& file = source.file();
    for (std::uint32_t i = 1; i < source.entity.recordCount; ++i) {
        const dxf::Record& record = file.record(source.entity.record + i);
        if (file.typeName(record.type) != "ATTRIB")
            continue;
        const Head head = readHead(file, record, layers_);
        if (!head.look.visible)
            continue;
        Pen pen(definition.own, wanted_);
        pen.take(head.look);
        showAttribute({drawing_, source.entity, &record, head.bodyBegin}, pen);
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
