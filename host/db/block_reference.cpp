#include "host/db/block_reference.h"

#include "host/db/data.h"
#include "host/db/database.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quor::db {

namespace {

constexpr int kExternalFlags = 4 | 8 | 16; // reference, overlay, part of one

double realOf(const DrawingFile& file, const dxf::Record& record, int code, double otherwise) {
    dxf::Tag tag;
    return file.findTag(record, code, tag) ? tag.asDouble().value_or(otherwise) : otherwise;
}

std::int64_t wholeOf(const DrawingFile& file, const dxf::Record& record, int code, std::int64_t otherwise) {
    dxf::Tag tag;
    return file.findTag(record, code, tag) ? tag.asInt().value_or(otherwise) : otherwise;
}

// The three numbers of a point or vector, 10 apart.
ZrGePoint3d pointOf(const DrawingFile& file, const dxf::Record& record, int code, const ZrGePoint3d& otherwise) {
    return {realOf(file, record, code, otherwise.x), realOf(file, record, code + 10, otherwise.y),
            realOf(file, record, code + 20, otherwise.z)};
}

// The scale factors follow each other.
ZrGeVector3d scaleOf(const DrawingFile& file, const dxf::Record& record) {
    return {realOf(file, record, 41, 1), realOf(file, record, 42, 1), realOf(file, record, 43, 1)};
}

ZrGePoint3d basePoint(const DrawingFile& file, const Block* block) {
    return block == nullptr || block->begin == ObjectEntry::kNoRecord
               ? ZrGePoint3d()
               : pointOf(file, file.record(block->begin), 10, {});
}

// Where the x axis goes by a turn. Quarter turns are exact, so that what lies on round coordinates stays there.
ZrGeVector3d turnedXAxis(double degrees) {
    constexpr std::array<ZrGeVector3d, 4> quarters{ZrGeVector3d(1, 0, 0), ZrGeVector3d(0, 1, 0), ZrGeVector3d(-1, 0, 0),
                                                   ZrGeVector3d(0, -1, 0)};
    const double turns = std::fmod(degrees, 360) / 90;
    if (turns == std::floor(turns))
        return quarters[static_cast<std::size_t>(turns < 0 ? turns + 4 : turns)];
    return {std::cos(degrees * kDegree), std::sin(degrees * kDegree), 0};
}

// From the plane in which a reference stands to the world.
ZrGeMatrix3d planeOf(const DrawingFile& file, const dxf::Record& record) {
    ZrGeMatrix3d plane;
    return plane.setToPlaneToWorld(pointOf(file, record, 210, {0, 0, 1}).asVector());
}

ZrGeMatrix3d placementOf(const DrawingFile& file, const dxf::Record& record, const ZrGePoint3d& base) {
    const ZrGeVector3d scale = scaleOf(file, record);
    const ZrGeVector3d xAxis = turnedXAxis(realOf(file, record, 50, 0));
    const ZrGeVector3d yAxis(-xAxis.y, xAxis.x, 0);
    ZrGeMatrix3d inPlane;
    inPlane.setCoordSystem(pointOf(file, record, 10, {}), xAxis * scale.x, yAxis * scale.y,
                           ZrGeVector3d::kZAxis * scale.z);
    ZrGeMatrix3d fromBase;
    fromBase.setToTranslation(-base.asVector());
    return planeOf(file, record) * inPlane * fromBase;
}

void readArray(const DrawingFile& file, const dxf::Record& record, BlockReference& reference) {
    reference.columns = std::max<std::int64_t>(wholeOf(file, record, 70, 1), 1);
    reference.rows = std::max<std::int64_t>(wholeOf(file, record, 71, 1), 1);
    reference.isArray = reference.columns > 1 || reference.rows > 1;
    if (!reference.isArray)
        return;
    const ZrGeMatrix3d plane = planeOf(file, record);
    const ZrGeVector3d xAxis = turnedXAxis(realOf(file, record, 50, 0));
    reference.columnStep = plane * (xAxis * realOf(file, record, 44, 0));
    reference.rowStep = plane * (ZrGeVector3d(-xAxis.y, xAxis.x, 0) * realOf(file, record, 45, 0));
}

} // namespace

std::optional<BlockReference> readBlockReference(Database& database, const ObjectEntry& entity) {
    const DrawingFile& file = database.file();
    if (!entity.isInFile() || file.typeName(entity.type) != "INSERT")
        return std::nullopt;
    const dxf::Record& record = file.record(entity.record);
    BlockReference reference;
    if (dxf::Tag tag; file.findTag(record, 2, tag))
        reference.name = file.text(tag);
    reference.block = database.structure().findBlock(reference.name);
    reference.position = planeOf(file, record) * pointOf(file, record, 10, {});
    reference.placement = placementOf(file, record, basePoint(file, reference.block));
    readArray(file, record, reference);
    reference.isFlat = reference.placement.isSingular();
    return reference;
}

bool isExternal(const DrawingFile& file, const Block& block) {
    return block.begin != ObjectEntry::kNoRecord &&
           (wholeOf(file, file.record(block.begin), 70, 0) & kExternalFlags) != 0;
}

} // namespace quor::db
