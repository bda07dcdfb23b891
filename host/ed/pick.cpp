#include "host/ed/pick.h"

#include "host/db/block_reference.h"
#include "host/db/ref_edit.h"
#include "host/ed/in_sight.h"
#include "sdk/db/database.h"
#include "sdk/db/face.h"
#include "sdk/db/light.h"
#include "sdk/db/line.h"

#include <algorithm>

namespace quor::ed {

namespace {

void leaveOutUnseen(const Document& document, ZrDbObjectIdArray& ids) {
    InSight inSight(document.drawing());
    std::erase_if(ids, [&](ZrDbObjectId id) { return !inSight.holds(*id.entry()); });
}

} // namespace

ZrDbObjectIdArray entitiesOfCurrentSpace(const Document& document) {
    return document.drawing().entities(document.database()->currentSpaceId());
}

ZrDbObjectIdArray entitiesInSight(const Document& document) {
    ZrDbObjectIdArray ids = entitiesOfCurrentSpace(document);
    leaveOutUnseen(document, ids);
    return ids;
}

ZrDbObjectIdArray selectableEntities(const Document& document) {
    ZrDbObjectIdArray ids = entitiesInSight(document);
    (void)leaveOutStrangers(document, ids);
    return ids;
}

std::vector<ZrGePoint3d> knownPoints(ZrDbObjectId id) {
    const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
    if (!entity)
        return {};
    if (const auto* light = zrrxCast<ZrDbLight>(entity.object()))
        return {light->position()};
    if (const auto* line = zrrxCast<ZrDbLine>(entity.object()))
        return {line->startPoint(), line->endPoint()};
    if (const auto reference = db::readBlockReference(id.database()->host(), *id.entry()))
        return {reference->position};
    std::vector<ZrGePoint3d> corners;
    if (const auto* face = zrrxCast<ZrDbFace>(entity.object()))
        for (int i = 0; i < 4; ++i)
            face->getVertexAt(i, corners.emplace_back());
    return corners;
}

std::optional<ZrDbObjectId> entityByHandle(const Document& document, std::wstring_view text) {
    constexpr std::size_t kMostDigits = 16;
    if (!text.empty() && text.front() == L'#')
        text.remove_prefix(1);
    if (text.empty() || text.size() > kMostDigits)
        return std::nullopt;
    std::uint64_t value = 0;
    for (const wchar_t c : text) {
        const std::size_t digit = std::wstring_view(L"0123456789ABCDEF").find(c >= L'a' && c <= L'f' ? c - 32 : c);
        if (digit == std::wstring_view::npos)
            return std::nullopt;
        value = value * 16 + digit;
    }
    const ZrDbObjectId id = document.database()->objectId(ZrDbHandle(value));
    if (id.isNull() || id.isErased() || id.entry()->owner != document.database()->currentSpaceId().entry())
        return std::nullopt;
    return id;
}

ZrDbObjectIdArray entitiesAt(const Document& document, const ZrGePoint3d& point) {
    ZrDbObjectIdArray found;
    for (const ZrDbObjectId id : entitiesOfCurrentSpace(document)) {
        const std::vector<ZrGePoint3d> points = knownPoints(id);
        if (std::any_of(points.begin(), points.end(), [&](const ZrGePoint3d& p) { return p.isEqualTo(point); }))
            found.push_back(id);
    }
    leaveOutUnseen(document, found);
    return found;
}

ZrDbObjectIdArray entitiesInWindow(const Document& document, const ZrGePoint3d& a, const ZrGePoint3d& b) {
    const auto between = [](double value, double one, double other) {
        return value >= std::min(one, other) && value <= std::max(one, other);
    };
    const auto inside = [&](const ZrGePoint3d& world) {
        const ZrGePoint3d p = zrdbWcs2Ucs(world);
        return between(p.x, a.x, b.x) && between(p.y, a.y, b.y);
    };
    ZrDbObjectIdArray found;
    for (const ZrDbObjectId id : entitiesOfCurrentSpace(document)) {
        const std::vector<ZrGePoint3d> points = knownPoints(id);
        if (!points.empty() && std::all_of(points.begin(), points.end(), inside))
            found.push_back(id);
    }
    leaveOutUnseen(document, found);
    return found;
}

std::size_t leaveOutStrangers(const Document& document, ZrDbObjectIdArray& ids) {
    const db::RefEdit& editing = document.drawing().refEdit();
    return editing.isActive() ? std::erase_if(ids, [&](ZrDbObjectId id) { return !editing.holds(*id.entry()); }) : 0;
}

} // namespace quor::ed
