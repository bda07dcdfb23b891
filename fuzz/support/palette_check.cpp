#include "fuzz/support/palette_check.h"

#include "fuzz/support/failure.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/rx/module_loader.h"
#include "host/session.h"
#include "host/sys/utf8.h"
#include "host/ui/user_interface.h"
#include "sdk/db/light.h"
#include "sdk/ed/selection.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/palette_set_manager.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace quor::fuzz {

namespace {

constexpr int kNameColumn = 1;
constexpr int kNoImage = -1;

struct LightRow {
    ZrString name;
    int image = kNoImage;
    bool operator==(const LightRow&) const = default;
};

int imageOf(DrawableType type) {
    switch (type) {
    case DrawableType::kDistantLight:
        return 0;
    case DrawableType::kPointLight:
        return 1;
    case DrawableType::kSpotLight:
        return 2;
    case DrawableType::kWebLight:
        return 3;
    default:
        return kNoImage;
    }
}

std::vector<ZrDbObjectId> lightsWanted(db::Database& drawing) {
    std::vector<ZrDbObjectId> lights;
    for (const ZrDbObjectId id : drawing.entities(drawing.interface().modelSpaceId())) {
        if (drawing.refEdit().isActive() && !zwutads::isObjInWorkset(id))
            continue;
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        require(static_cast<bool>(entity), "an entity is open between the commands");
        if (entity->isA() == ZrDbLight::desc())
            lights.push_back(id);
    }
    return lights;
}

ZrString nameOf(ZrDbObjectId light) { return ZrDbObjectPointer<ZrDbLight>(light, ZrDb::kForRead)->name(); }

std::vector<LightRow> rowsWanted(db::Database& drawing) {
    std::vector<LightRow> rows;
    for (const ZrDbObjectId id : lightsWanted(drawing))
        rows.push_back({nameOf(id), imageOf(ZrDbObjectPointer<ZrDbLight>(id, ZrDb::kForRead)->lightType())});
    std::ranges::stable_sort(rows, {}, &LightRow::name);
    return rows;
}

std::vector<LightRow> rowsOf(const CListCtrl& list) {
    std::vector<LightRow> rows;
    rows.reserve(static_cast<std::size_t>(list.GetItemCount()));
    for (int row = 0; row < list.GetItemCount(); ++row)
        rows.push_back({list.GetItemText(row, kNameColumn), list.GetItemImage(row)});
    return rows;
}

std::string shown(const std::vector<LightRow>& rows) {
    std::string text;
    for (const LightRow& row : rows)
        text += " " + std::to_string(row.image) + ":" + toUtf8(row.name);
    return text;
}

void checkSelection(const CListCtrl& list) {
    int selected = 0;
    int focused = 0;
    int next = list.GetNextItem(-1, LVNI_SELECTED);
    for (int row = 0; row < list.GetItemCount(); ++row) {
        const bool isSelected = list.GetItemState(row, LVIS_SELECTED) != 0;
        require(isSelected == (next == row), "the selected rows are others when they are asked for in turn");
        require(isSelected == list.isSelected(list.MapIndexToID(row)), "a row is selected and is not");
        selected += isSelected ? 1 : 0;
        focused += list.GetItemState(row, LVIS_FOCUSED) != 0 ? 1 : 0;
        next = isSelected ? list.GetNextItem(row, LVNI_SELECTED) : next;
    }
    require(next == -1, "a row behind the last one is selected");
    require(list.GetSelectedCount() == selected, "the number of selected rows is another one");
    require(focused <= 1, "two rows have the focus");
    require(list.GetSelectionMark() < list.GetItemCount(), "a row behind the last one is marked");
}

void checkIds(const CListCtrl& list) {
    std::set<unsigned> ids;
    unsigned next = list.MapIndexToID(0);
    for (int row = 0; row < list.GetItemCount(); ++row) {
        const unsigned id = list.MapIndexToID(row);
        require(id != CListCtrl::kNoRow && ids.insert(id).second, "two rows have one id");
        require(list.MapIDToIndex(id) == row && next == id, "a row is not where its id says");
        next = list.nextID(id);
    }
    require(next == CListCtrl::kNoRow, "there is a row behind the last one");
}

void checkPlaces(const CListCtrl& list) {
    const CRect client = list.GetClientRect();
    for (int row = 0; row < list.GetItemCount(); ++row) {
        const CRect place = list.GetItemRect(row, LVIR_BOUNDS);
        require(place.Height() == list.rowHeight(), "a row has a height of its own");
        require(row == 0 || place.top == list.GetItemRect(row - 1, LVIR_BOUNDS).bottom, "rows overlap or lie apart");
        const CPoint inside{place.left, place.top};
        if (row >= list.GetTopIndex() && client.PtInRect(inside) && !place.IsRectEmpty())
            require(list.HitTest(inside) == row, "another row stands where a row is");
    }
    require(list.GetTopIndex() >= 0 && list.GetTopIndex() <= std::max(0, list.GetItemCount() - 1),
            "it is scrolled away");
}

void checkDrawingsLights(Session& session, Document& document, const CListCtrl& list) {
    session.documents().setCurrent(&document);
    session.processor().run(L"LIGHTLIST", true);
    const std::vector<LightRow> wanted = rowsWanted(document.drawing());
    const std::vector<LightRow> rows = rowsOf(list);
    if (rows != wanted)
        fail("the list has" + shown(rows) + "\ninstead of" + shown(wanted));
    for (int row = 0; row < list.GetItemCount(); ++row)
        require(list.GetItemData(row) == row, "the data of a row is not its place");
    checkRows(list);
    checkListState(session);
}

// Those of one name are one.
std::set<ZrString> namesOf(const std::vector<LightRow>& rows) {
    std::set<ZrString> names;
    for (const LightRow& row : rows)
        names.insert(row.name);
    return names;
}

std::set<ZrString> namesSelectedInDrawing(db::Database& drawing) {
    const ZrDbObjectIdArray selected = zredImpliedSelection();
    std::set<ZrString> names;
    for (const ZrDbObjectId id : lightsWanted(drawing))
        if (std::ranges::find(selected, id) != selected.end())
            names.insert(nameOf(id));
    return names;
}

std::set<ZrString> namesSelected(const CListCtrl& list) {
    std::set<ZrString> names;
    for (int row = list.GetNextItem(-1, LVNI_SELECTED); row >= 0; row = list.GetNextItem(row, LVNI_SELECTED))
        names.insert(list.GetItemText(row, kNameColumn));
    return names;
}

} // namespace

CZkUiPaletteSet* openPalette(Session& session) {
    CZrRxPaletteSetManager* const manager = session.ui().palettes(false);
    if (manager == nullptr)
        return nullptr;
    for (CZrRxPaletteSet* const palette : manager->palettes())
        if (palette->IsWindow())
            return palette;
    return nullptr;
}

CListCtrl* listIn(const CWnd& window) {
    for (CWnd* const child : window.children()) {
        if (auto* const list = dynamic_cast<CListCtrl*>(child))
            return list;
        if (CListCtrl* const list = listIn(*child))
            return list;
    }
    return nullptr;
}

void checkRows(const CWnd& window) {
    const auto* const self = dynamic_cast<const CListCtrl*>(&window);
    const CListCtrl* const list = self != nullptr ? self : listIn(window);
    require(list != nullptr, "a palette has lost its list");
    checkIds(*list);
    checkSelection(*list);
    checkPlaces(*list);
}

void checkSelectionIsShared(Session& session) {
    const CZkUiPaletteSet* const palette = openPalette(session);
    const Document* const document = session.documents().current();
    if (palette == nullptr || !palette->IsWindowEnabled() || document == nullptr || session.processor().isRunning())
        return;
    const CListCtrl& list = *listIn(*palette);
    std::vector<LightRow> rows = rowsOf(list);
    std::ranges::sort(rows, {}, &LightRow::name);
    if (rows == rowsWanted(document->drawing()) && namesOf(rows).size() == rows.size())
        require(namesSelected(list) == namesSelectedInDrawing(document->drawing()),
                "the list and the drawing have other lights selected");
}

void checkListState(Session& session) {
    const CZkUiPaletteSet* const palette = openPalette(session);
    const bool isSeen = palette != nullptr && palette->IsVisible() && palette->IsWindowVisible();
    short state = -1;
    const bool isThere = zwutads::getVar(L"LIGHTLISTSTATE", state);
    require(isThere == !session.modules().loaded().empty(), "LIGHTLISTSTATE comes and goes without the module");
    require(!isThere || state == (isSeen ? 1 : 0), "LIGHTLISTSTATE is wrong");
}

void checkLightList(Session& session) {
    checkListState(session);
    const CZkUiPaletteSet* const palette = openPalette(session);
    if (palette == nullptr)
        return;
    checkRows(*palette);
    const CListCtrl* const list = listIn(*palette);
    for (const auto& document : session.documents().all())
        checkDrawingsLights(session, *document, *list);
}

} // namespace quor::fuzz
