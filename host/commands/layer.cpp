#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/layer_name.h"
#include "host/commands/listing.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/text_width.h"
#include "host/texts/commands.h"
#include "sdk/db/symbol_table.h"

#include <algorithm>

namespace quor::commands {

namespace {

using LayerForRead = ZrDbObjectPointer<ZrDbLayerTableRecord>;

struct LayerRow {
    ZrString name;
    ZrString state;
    ZrString color;
};

ZrString stateText(const ZrDbLayerTableRecord& layer) {
    ZrString state = (layer.isOff() ? texts::kLayerOff : texts::kLayerOn).get();
    if (layer.isFrozen())
        state += ZrString(L" ") + texts::kLayerFrozen.get();
    if (layer.isLocked())
        state += ZrString(L" ") + texts::kLayerLocked.get();
    return state;
}

// Hidden layers are the system's business and not listed.
int listLayers(const db::Database& drawing) {
    std::vector<LayerRow> rows = {
        {texts::kLayerColumnName.get(), texts::kLayerColumnState.get(), texts::kLayerColumnColor.get()}};
    for (const ZrDbObjectId id : drawing.layerIds()) {
        const LayerForRead layer(id, ZrDb::kForRead);
        if (layer && !layer->isHidden())
            rows.push_back({visibleText(layer->getName()), stateText(*layer), colorText(layer->color())});
    }
    int nameWidth = 0;
    int stateWidth = 0;
    for (const LayerRow& row : rows) {
        nameWidth = std::max(nameWidth, columnsOf(row.name));
        stateWidth = std::max(stateWidth, columnsOf(row.state));
    }
    for (const LayerRow& row : rows)
        printText(L"\n  " + padRight(row.name, nameWidth) + L"  " + padRight(row.state, stateWidth) + L"  " +
                  row.color + L"\n");
    return RTNORM;
}

ZrString currentLayerName(const ZrDbDatabase& database) {
    const LayerForRead layer(database.currentLayerId(), ZrDb::kForRead);
    return layer ? layer->displayName() : ZrString();
}

ZrDbObjectId findLayer(ZrDbDatabase& database, const ZrString& name) {
    ZrDbLayerTable* table = nullptr;
    ZrDbObjectId id;
    if (database.getLayerTable(table, ZrDb::kForRead) != Quor::eOk)
        return id;
    table->getIdAt(name, id);
    table->close();
    return id;
}

bool refuse(const Text& why, const ZrString& name) {
    sayShown(why, shortened(name), kNotInLayerNames);
    return false;
}

// Makes a layer current unless it is one that nothing may be drawn on; says why not.
bool makeCurrent(db::Database& drawing, ZrDbObjectId id, const ZrString& name) {
    {
        const LayerForRead layer(id, ZrDb::kForRead);
        if (!layer)
            return refuse(texts::kNoSuchLayer, name);
        if (layer->isHidden())
            return refuse(texts::kLayerIsHidden, name);
        if (layer->isFrozen())
            return refuse(texts::kLayerIsFrozen, name);
    }
    drawing.setCurrentLayer(id);
    sayShown(texts::kCurrentLayer, currentLayerName(drawing.interface()));
    return true;
}

int makeLayer(db::Database& drawing) {
    return askUntilTaken(texts::kAskLayerToMake.get(), [&](const ZrString& name) {
        ZrDbObjectId id = findLayer(drawing.interface(), name);
        if (id.isNull() && !isLayerName(name))
            return refuse(texts::kBadLayerName, name);
        if (id.isNull())
            id = drawing.makeLayer(name);
        return makeCurrent(drawing, id, name);
    });
}

int setLayer(db::Database& drawing) {
    const ZrString prompt = fillShown(texts::kAskLayerToSet, currentLayerName(drawing.interface()));
    return askUntilTaken(
        prompt, [&](const ZrString& name) { return makeCurrent(drawing, findLayer(drawing.interface(), name), name); });
}

} // namespace

// Options until Enter; Esc ends the command, what was done before it stays.
int layer(Session& session) {
    Document& document = *session.documents().current();
    db::Database& drawing = document.drawing();
    sayShown(texts::kCurrentLayer, currentLayerName(drawing.interface()));
    while (true) {
        armKeywords(0, L"? Make Set");
        ZrString keyword;
        const int asked = zredGetKword(texts::kAskLayer.get(), keyword);
        if (asked != RTNORM)
            return asked == RTNONE ? RTNORM : asked;
        const int result = keyword == L"?"      ? listLayers(drawing)
                           : keyword == L"Make" ? makeLayer(drawing)
                                                : setLayer(drawing);
        if (result != RTNORM)
            return result;
    }
}

} // namespace quor::commands
