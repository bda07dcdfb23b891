#include "sdk/db/face.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/draw.h"
#include "host/texts/commands.h"
#include "sdk/db/database.h"

#include <array>
#include <cstddef>

namespace quor::commands {

namespace {

struct Corner {
    ZrGePoint3d point;       // in the UCS
    bool hiddenEdge = false; // the edge from this corner to the next
};
using Corners = std::array<Corner, 4>;

const std::array<const Text*, 4> kPrompts = {&texts::kAskFaceFirst, &texts::kAskFaceSecond, &texts::kAskFaceThird,
                                             &texts::kAskFaceFourth};

// Asks for one corner; "Invisible" before it hides the edge that begins there.
int askCorner(Corners& corners, std::size_t index) {
    Corner& corner = corners[index];
    corner.hiddenEdge = false;
    const ZrGePoint3d* base = index == 0 ? nullptr : &corners[index - 1].point;
    while (true) {
        armKeywords(0, L"Invisible");
        const int result = zredGetPoint(base, kPrompts[index]->get(), corner.point);
        if (result != RTKWORD)
            return result;
        corner.hiddenEdge = true;
    }
}

bool postFace(const Corners& corners) {
    std::array<ZrGePoint3d, 4> world;
    for (std::size_t i = 0; i < corners.size(); ++i)
        world[i] = zrdbUcs2Wcs(corners[i].point);
    auto face = std::make_unique<ZrDbFace>(world[0], world[1], world[2], world[3]);
    for (std::size_t i = 0; i < corners.size(); ++i)
        face->setEdgeVisibleAt(static_cast<int>(i), !corners[i].hiddenEdge);
    return !post(std::move(face)).isNull();
}

} // namespace

// Each face begins with the edge on which the one before ended: its third and fourth corner.
int face(Session&) {
    Corners corners;
    for (std::size_t first : {std::size_t{0}, std::size_t{1}})
        if (const int result = askCorner(corners, first); result != RTNORM)
            return result == RTNONE ? RTNORM : result;
    while (true) {
        if (const int result = askCorner(corners, 2); result != RTNORM)
            return result == RTNONE ? RTNORM : result;
        const int result = askCorner(corners, 3);
        if (result != RTNORM && result != RTNONE)
            return result;
        if (result == RTNONE)
            corners[3].point = corners[2].point;
        if (!postFace(corners))
            return RTERROR;
        corners[0] = corners[2];
        corners[1] = corners[3];
    }
}

} // namespace quor::commands
