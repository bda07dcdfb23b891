#include "host/commands/list_kinds.h"
#include "host/texts/list.h"
#include "sdk/db/face.h"
#include "sdk/db/line.h"

namespace quor::commands {

namespace {
constexpr int kCorners = 4;
}

void listLine(const ZrDbLine& line, Listing& listing) {
    const ZrGeVector3d delta = line.endPoint() - line.startPoint();
    listing.row(texts::kListStart, pointText(line.startPoint()));
    listing.row(texts::kListEnd, pointText(line.endPoint()));
    listing.row(texts::kListLength, lengthText(delta.length()));
    listing.row(texts::kListDelta, vectorText(delta));
}

void listFace(const ZrDbFace& face, Listing& listing) {
    for (int i = 0; i < kCorners; ++i) {
        ZrGePoint3d corner;
        face.getVertexAt(i, corner);
        listing.row(fill(texts::kListCorner, i + 1), pointText(corner));
    }
    for (int i = 0; i < kCorners; ++i) {
        bool visible = true;
        face.isEdgeVisibleAt(i, visible);
        listing.row(fill(texts::kListEdge, i + 1), (visible ? texts::kEdgeVisible : texts::kEdgeInvisible).get());
    }
}

} // namespace quor::commands
