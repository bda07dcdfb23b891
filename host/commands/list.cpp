#include "host/texts/list.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/list_kinds.h"
#include "host/commands/ucs_math.h"
#include "host/document.h"
#include "host/session.h"
#include "sdk/db/face.h"
#include "sdk/db/light.h"
#include "sdk/db/line.h"

#include <algorithm>

namespace quor::commands {

namespace {

ZrString handleText(ZrDbObjectId id) { return zrFormat(L"%X", {id.handle().value()}); }

ZrString spaceText(const db::Database& drawing, ZrDbDatabase& database, ZrDbObjectId block) {
    if (block == database.modelSpaceId())
        return texts::kListModelSpace.get();
    const std::vector<db::LayoutInfo> layouts = drawing.layouts();
    const auto layout = std::ranges::find(layouts, block, &db::LayoutInfo::blockId);
    if (layout != layouts.end())
        return fill(texts::kListPaperSpace, layout->name);
    const ZrDbObjectPointer<ZrDbBlockTableRecord> record(block, ZrDb::kForRead);
    return fill(texts::kListBlock, record ? record->getName() : ZrString());
}

void listCommon(const db::Database& drawing, const ZrDbEntity& entity, Listing& listing) {
    listing.row(texts::kListHandle, handleText(entity.objectId()));
    listing.row(texts::kListSpace, spaceText(drawing, *entity.database(), entity.blockId()));
    listing.row(texts::kListLayer, entity.layer());
    listing.row(texts::kListColor, colorText(entity.color()));
    listing.row(texts::kListLinetype, linetypeText(entity.linetype()));
    listing.row(texts::kListLineweight, lineweightText(entity.lineWeight()));
    listing.row(texts::kListVisible, yesNoText(entity.visibility() == ZrDb::kVisible));
}

void listTags(db::Database& drawing, ZrDbObjectId id, Listing& listing) {
    listing.line(texts::kListContents.get());
    for (const auto& [code, value] : drawing.tags(id))
        listing.line(zrFormat(L"%6d  %s", {code, value}));
}

void listOne(db::Database& drawing, ZrDbObjectId id) {
    const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
    if (!entity)
        return say(texts::kListUnreadable, handleText(id));
    Listing listing;
    listing.heading(drawing.typeName(id));
    listCommon(drawing, *entity, listing);
    if (const auto* light = zrrxCast<ZrDbLight>(entity.object()))
        listLight(*light, listing);
    else if (const auto* line = zrrxCast<ZrDbLine>(entity.object()))
        listLine(*line, listing);
    else if (const auto* face = zrrxCast<ZrDbFace>(entity.object()))
        listFace(*face, listing);
    else
        listTags(drawing, id, listing);
    printText(listing.text());
}

void listAll(Session& session, const ZrDbObjectIdArray& ids) {
    db::Database& drawing = session.documents().current()->drawing();
    if (!sameUcs(drawing.ucs(), db::Ucs()))
        say(texts::kListUcs);
    for (const ZrDbObjectId id : ids)
        listOne(drawing, id);
}

// RTNORM with what was listed, nothing where nothing was selected; RTCAN or RTERROR.
int listSelected(Session& session, ZrDbObjectIdArray& ids) {
    const int result = zredSelect(nullptr, ids);
    if (result == RTNORM)
        listAll(session, ids);
    return result == RTNONE ? RTNORM : result;
}

} // namespace

int list(Session& session) {
    ZrDbObjectIdArray ids;
    return listSelected(session, ids);
}

int properties(Session& session) {
    if (session.front().showProperties()) {
        zredSetImpliedSelection(zredImpliedSelection()); // stays when the command ends
        return RTNORM;
    }
    ZrDbObjectIdArray ids;
    const int result = listSelected(session, ids);
    // What a command selects stays selected when it ends.
    if (!ids.empty())
        zredSetImpliedSelection(ids);
    return result;
}

} // namespace quor::commands
