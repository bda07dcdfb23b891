#include "tests/light/palette/palette_test.h"

#include "host/ui/input.h"
#include "sdk/db/database.h"
#include "sdk/ed/selection.h"
#include "sdk/rx/application.h"
#include "sdk/rx/command.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"

extern "C" Zr::AppRetCode zrrxEntryPoint(unsigned message, void* applicationId);

namespace quor::test {

namespace {

// The layer, made when the drawing has none of that name.
ZrDbObjectId layerNamed(const wchar_t* name, bool hidden) {
    ZrDbLayerTable* table = nullptr;
    ZrDbObjectId id;
    EXPECT_EQ(zrdbWorkingDatabase()->getLayerTable(table, ZrDb::kForWrite), Quor::eOk);
    if (table->getIdAt(name, id) != Quor::eOk) {
        auto layer = std::make_unique<ZrDbLayerTableRecord>();
        layer->setName(name);
        layer->setIsHidden(hidden);
        EXPECT_EQ(table->add(id, layer.get()), Quor::eOk);
        layer.release()->close();
    }
    table->close();
    return id;
}

CPoint middleOfName(const CListCtrl& list, int row) {
    const CRect label = list.GetSubItemRect(row, 1, LVIR_LABEL);
    return {label.left + label.Width() / 2, label.top + label.Height() / 2};
}

CPoint belowRows(const CListCtrl& list) { return {list.GetClientRect().Width() / 2, list.GetClientRect().bottom - 1}; }

} // namespace

ZrRxClass* DerivedLight::desc() {
    static ZrRxClass description(L"DerivedLight", ZrDbLight::desc(), L"DERIVEDLIGHT");
    return &description;
}

PaletteTest::PaletteTest(const TestSessionOptions& options) : session_(options) {
    light::rowOrder = {};
    zwutads::setVar(L"DEFAULTLIGHTING", 0); // commands that make lights would ask about it
    zrrxEntryPoint(Zr::kInitAppMsg, nullptr);
    session_.addCommand(L"DO", [this] {
        body_();
        return RTNORM;
    });
}

PaletteTest::~PaletteTest() { zrrxEntryPoint(Zr::kUnloadAppMsg, nullptr); }

void PaletteTest::asCommand(std::function<void()> body) {
    body_ = std::move(body);
    EXPECT_EQ(session_.session().processor().run(L"DO", false).result, RTNORM);
}

ZrDbObjectId PaletteTest::make(const LightToMake& wanted, std::unique_ptr<ZrDbLight> light) {
    ZrDbObjectId id;
    asCommand([&] {
        EXPECT_EQ(light->setName(wanted.name), Quor::eOk);
        EXPECT_EQ(light->setLightType(wanted.type), Quor::eOk);
        EXPECT_EQ(light->setLayer(layerNamed(wanted.layer, wanted.hiddenLayer), true, true), Quor::eOk);
        id = RxCommand::postToDb(*light, wanted.space, nullptr, true);
        EXPECT_TRUE(id.isValid());
        static_cast<void>(light.release());
    });
    return id;
}

ZrDbObjectId PaletteTest::make(const wchar_t* name, DrawableType type) { return make({.name = name, .type = type}); }

void PaletteTest::rename(ZrDbObjectId light, const ZrString& name) {
    asCommand([&] { ZrDbObjectPointer<ZrDbLight>(light, ZrDb::kForWrite)->setName(name); });
}

void PaletteTest::setType(ZrDbObjectId light, DrawableType type) {
    asCommand([&] { ZrDbObjectPointer<ZrDbLight>(light, ZrDb::kForWrite)->setLightType(type); });
}

void PaletteTest::erase(ZrDbObjectId light, bool erasing) {
    asCommand([&] { ZrDbObjectPointer<ZrDbLight>(light, ZrDb::kForWrite, true)->erase(erasing); });
}

Names PaletteTest::names() {
    Names all;
    all.reserve(static_cast<std::size_t>(list().GetItemCount()));
    for (int row = 0; row < list().GetItemCount(); ++row)
        all.push_back(list().GetItemText(row, 1));
    return all;
}

std::vector<int> PaletteTest::images() {
    std::vector<int> all;
    all.reserve(static_cast<std::size_t>(list().GetItemCount()));
    for (int row = 0; row < list().GetItemCount(); ++row)
        all.push_back(list().GetItemImage(row));
    return all;
}

Names PaletteTest::selectedNames() {
    Names selected;
    for (int row = 0; row < list().GetItemCount(); ++row)
        if (isSelected(row))
            selected.push_back(list().GetItemText(row, 1));
    return selected;
}

bool PaletteTest::isSelected(int row) { return list().GetItemState(row, LVIS_SELECTED) != 0; }

std::vector<ZrDbObjectId> PaletteTest::selectedInDrawing() { return zredImpliedSelection(); }

void PaletteTest::selectInDrawing(const std::vector<ZrDbObjectId>& ids) { zredSetImpliedSelection(ids); }

GlyphDisplay PaletteTest::glyphDisplay(ZrDbObjectId light) {
    return ZrDbObjectPointer<ZrDbLight>(light, ZrDb::kForRead)->glyphDisplay();
}

short PaletteTest::lightListState() {
    short state = -1;
    EXPECT_TRUE(zwutads::getVar(L"LIGHTLISTSTATE", state));
    return state;
}

void PaletteTest::click(int row, unsigned flags) { ui::click(list(), middleOfName(list(), row), flags); }
void PaletteTest::doubleClick(int row) { ui::doubleClick(list(), middleOfName(list(), row)); }
void PaletteTest::rightClick(int row) { ui::rightClick(list(), middleOfName(list(), row)); }
void PaletteTest::clickBeside() { ui::click(list(), belowRows(list())); }
void PaletteTest::doubleClickBeside() { ui::doubleClick(list(), belowRows(list())); }
void PaletteTest::rightClickBeside() { ui::rightClick(list(), belowRows(list())); }
void PaletteTest::moveTo(int row) { ui::moveMouse(list(), middleOfName(list(), row)); }

void PaletteTest::clickHeading(int column) {
    CHeaderCtrl& header = *list().GetHeaderCtrl();
    const CRect heading = header.GetItemRect(column);
    ui::click(header, {heading.left + heading.Width() / 2, heading.top + heading.Height() / 2});
}

void PaletteTest::press(unsigned key) {
    list().SetFocus();
    ui::pressKey(key);
}

} // namespace quor::test
