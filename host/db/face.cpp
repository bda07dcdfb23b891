#include "sdk/db/face.h"

#include "host/db/data.h"
#include "host/db/finite.h"

namespace {

constexpr int kCorners = 4;

bool isCorner(int index) { return index >= 0 && index < kCorners; }

const ZrDbFaceData& dataOf(const ZrDbFace& face) { return static_cast<const ZrDbFaceData&>(*face.hostData()); }

} // namespace

ZrDbFace::ZrDbFace(const ZrGePoint3d& first, const ZrGePoint3d& second, const ZrGePoint3d& third,
                   const ZrGePoint3d& fourth)
    : ZrDbEntity(std::make_unique<ZrDbFaceData>()) {
    static_cast<ZrDbFaceData&>(*data_).vertices = {first, second, third, fourth};
}

ZrRxClass* ZrDbFace::desc() {
    static ZrRxClass description(L"ZrDbFace", ZrDbEntity::desc(), L"3DFACE");
    return &description;
}

Quor::ErrorStatus ZrDbFace::getVertexAt(int index, ZrGePoint3d& vertex) const {
    if (!isCorner(index))
        return Quor::eInvalidIndex;
    vertex = dataOf(*this).vertices[static_cast<std::size_t>(index)];
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbFace::setVertexAt(int index, const ZrGePoint3d& vertex) {
    if (!isCorner(index))
        return Quor::eInvalidIndex;
    if (!quor::db::isFinite(vertex))
        return Quor::eInvalidInput;
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    static_cast<ZrDbFaceData&>(*data_).vertices[static_cast<std::size_t>(index)] = vertex;
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbFace::isEdgeVisibleAt(int index, bool& visible) const {
    if (!isCorner(index))
        return Quor::eInvalidIndex;
    visible = (dataOf(*this).hiddenEdges & (1 << index)) == 0;
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbFace::setEdgeVisibleAt(int index, bool visible) {
    if (!isCorner(index))
        return Quor::eInvalidIndex;
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    int& hidden = static_cast<ZrDbFaceData&>(*data_).hiddenEdges;
    hidden = visible ? hidden & ~(1 << index) : hidden | (1 << index);
    return Quor::eOk;
}
