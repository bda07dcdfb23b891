#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/commands/layer_list.h"
#include "host/commands/layer_states.h"
#include "host/document.h"
#include "host/props/layer_name.h"
#include "host/props/layer_rows.h"
#include "host/session.h"
#include "host/sys/text_width.h"
#include "host/texts/commands.h"
#include "sdk/db/symbol_table.h"

namespace quor::commands {

namespace {

using LayerForRead = ZrDbObjectPointer<ZrDbLayerTableRecord>;

ZrString currentLayerName(const ZrDbDatabase& database) {
    const LayerForRead layer(database.currentLayerId(), ZrDb::kForRead);
    return layer ? layer->displayName() : ZrString();
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
        ZrDbObjectId id = props::findLayer(drawing, name);
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
        prompt, [&](const ZrString& name) { return makeCurrent(drawing, props::findLayer(drawing, name), name); });
}

} // namespace

// Options until Enter; Esc ends the command, what was done before it stays.
int layer(Session& session) {
    Document& document = *session.documents().current();
    db::Database& drawing = document.drawing();
    sayShown(texts::kCurrentLayer, currentLayerName(drawing.interface()));
    while (true) {
        armKeywords(0, L"? Make Set ON OFF Color Freeze Thaw LOck Unlock");
        ZrString keyword;
        const int asked = zredGetKword(texts::kAskLayer.get(), keyword);
        if (asked != RTNORM)
            return asked == RTNONE ? RTNORM : asked;
        const int result = keyword == L"?"       ? listLayers(drawing)
                           : keyword == L"Make"  ? makeLayer(drawing)
                           : keyword == L"Set"   ? setLayer(drawing)
                           : keyword == L"Color" ? colorLayers(drawing)
                                                 : changeLayers(drawing, keyword);
        if (result != RTNORM)
            return result;
    }
}

// The palette, or where there is none the list.
int layers(Session& session) {
    return session.front().showLayers() ? RTNORM : listLayers(session.documents().current()->drawing());
}

} // namespace quor::commands
