#include "host/props/layer_rows.h"

#include "host/db/database.h"
#include "sdk/db/symbol_table.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>

namespace quor::props {
namespace {

using testing::HasSubstr;

class LayerRows : public testing::Test {
protected:
    std::vector<LayerRow> rows() { return layersOf(drawing()); }
    db::Database& drawing() { return host.document().drawing(); }

    test::TestSession host{{.language = L"en"}};
    ZrDbObjectId walls = drawing().makeLayer(L"Walls");
};

TEST_F(LayerRows, TellOfEachLayer) {
    ASSERT_EQ(rows().size(), 2U);
    EXPECT_EQ(rows()[0].name, L"0");
    EXPECT_TRUE(rows()[0].isCurrent);
    EXPECT_EQ(rows()[1].name, L"Walls");
    EXPECT_EQ(rows()[1].id, walls);
    EXPECT_FALSE(rows()[1].isCurrent);
    EXPECT_TRUE(rows()[1].isOn);
    EXPECT_FALSE(rows()[1].isFrozen);
    EXPECT_FALSE(rows()[1].isLocked);
    EXPECT_EQ(rows()[1].color.colorIndex(), 7);
}

TEST_F(LayerRows, LeaveHiddenLayersOut) {
    ZrDbObjectPointer<ZrDbLayerTableRecord>(walls, ZrDb::kForWrite)->setIsHidden(true);
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(LayerRows, FollowWhatIsSet) {
    EXPECT_EQ(setLayerOn(walls, false), std::nullopt);
    EXPECT_EQ(setLayerFrozen(walls, true), std::nullopt);
    EXPECT_EQ(setLayerLocked(walls, true), std::nullopt);
    EXPECT_EQ(setLayerColor(walls, ZrCmColor::fromIndex(3)), std::nullopt);

    EXPECT_FALSE(rows()[1].isOn);
    EXPECT_TRUE(rows()[1].isFrozen);
    EXPECT_TRUE(rows()[1].isLocked);
    EXPECT_EQ(rows()[1].color.colorIndex(), 3);
}

TEST_F(LayerRows, CurrentLayerCannotBeFrozen) {
    EXPECT_THAT(setLayerFrozen(drawing().interface().layerZeroId(), true).value_or(L""), HasSubstr(L"is current"));
    EXPECT_FALSE(rows()[0].isFrozen);
}

TEST_F(LayerRows, FrozenAndHiddenLayersCannotBecomeCurrent) {
    EXPECT_EQ(setLayerFrozen(walls, true), std::nullopt);
    EXPECT_THAT(makeLayerCurrent(drawing(), walls).value_or(L""), HasSubstr(L"frozen"));
    EXPECT_EQ(setLayerFrozen(walls, false), std::nullopt);
    ZrDbObjectPointer<ZrDbLayerTableRecord>(walls, ZrDb::kForWrite)->setIsHidden(true);
    EXPECT_THAT(makeLayerCurrent(drawing(), walls).value_or(L""), HasSubstr(L"reserved by the system"));
    EXPECT_TRUE(makeLayerCurrent(drawing(), {}).has_value());
    EXPECT_TRUE(rows()[0].isCurrent);
}

TEST_F(LayerRows, AnotherLayerBecomesCurrent) {
    EXPECT_EQ(makeLayerCurrent(drawing(), walls), std::nullopt);
    EXPECT_TRUE(rows()[1].isCurrent);
}

TEST_F(LayerRows, ColourOfALayerIsItsOwn) {
    EXPECT_TRUE(setLayerColor(walls, ZrCmColor()).has_value());
    EXPECT_EQ(rows()[1].color.colorIndex(), 7);
}

TEST_F(LayerRows, NewLayersHaveANameThatIsFree) {
    EXPECT_EQ(freeLayerName(drawing()), L"Layer1");
    EXPECT_EQ(addLayer(drawing(), L"Layer1"), std::nullopt);
    EXPECT_EQ(freeLayerName(drawing()), L"Layer2");
    EXPECT_EQ(rows().size(), 3U);
}

TEST_F(LayerRows, BadAndTakenNamesAreRefused) {
    EXPECT_THAT(addLayer(drawing(), L"wALLS").value_or(L""), HasSubstr(L"already a layer"));
    EXPECT_THAT(addLayer(drawing(), L"a|b").value_or(L""), HasSubstr(L"not a valid layer name"));
    EXPECT_TRUE(addLayer(drawing(), L"").has_value());
    EXPECT_TRUE(addLayer(drawing(), ZrString(256, L'x')).has_value());
    EXPECT_EQ(rows().size(), 2U);
}

} // namespace
} // namespace quor::props
