#include "tests/host/gs/scene_testing.h"

#include "host/db/ref_edit.h"
#include "sdk/db/face.h"
#include "tests/host/db/ref_editing.h"

namespace quor::gs {
namespace {

using db::drawings::erase;
using db::drawings::group;
using testing::ElementsAre;
using testing::IsEmpty;

template <class T, class Change>
void change(ZrDbObjectId id, Change&& act) {
    const ZrDbObjectPointer<T> object(id, ZrDb::kForWrite);
    act(*object);
}

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kRed = 0xFF0000;

using Line = std::pair<Triple, Triple>;

TEST_F(SceneTest, AnEmptyDrawingShowsNothing) {
    EXPECT_THAT(seen(), IsEmpty());
    EXPECT_TRUE(scene->extents().isEmpty());
}

TEST_F(SceneTest, TheFirstUpdateSaysThatThereIsSomethingToDraw) {
    EXPECT_TRUE(scene->update());
    EXPECT_FALSE(scene->update());
}

TEST_F(SceneTest, AnEntityThatIsAppendedIsShown) {
    scene->update();
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    EXPECT_THAT(seenOf(line).lines, ElementsAre(Line({1, 2, 3}, {4, 5, 6})));
}

TEST_F(SceneTest, TheExtentsAreAroundWhatIsShown) {
    addLine({1, 2, 3}, {4, 5, 6});
    addLine({-1, 2, 3}, {0, 9, 3});
    scene->update();
    EXPECT_EQ(scene->extents().low, ZrGePoint3d(-1, 2, 3));
    EXPECT_EQ(scene->extents().high, ZrGePoint3d(4, 9, 6));
}

TEST_F(SceneTest, AnEntityThatIsChangedStandsWhereItIsNow) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    change<ZrDbLine>(line, [](ZrDbLine& each) { each.setEndPoint({7, 8, 9}); });
    EXPECT_THAT(seenOf(line).lines, ElementsAre(Line({1, 2, 3}, {7, 8, 9})));
    EXPECT_EQ(scene->extents().high, ZrGePoint3d(7, 8, 9));
}

TEST_F(SceneTest, AChangedEntityTakesTheRoomThatItHad) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    const std::size_t lines = updated().lines.size();
    change<ZrDbLine>(line, [](ZrDbLine& each) { each.setEndPoint({7, 8, 9}); });
    EXPECT_EQ(updated().lines.size(), lines);
}

TEST_F(SceneTest, AnErasedEntityIsGoneUntilItComesBack) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    erase(line);
    EXPECT_THAT(seen(), IsEmpty());
    EXPECT_TRUE(scene->extents().isEmpty());
    erase(line, false);
    EXPECT_THAT(seenOf(line).lines, ElementsAre(Line({1, 2, 3}, {4, 5, 6})));
}

TEST_F(SceneTest, UndoAndRedoAreFollowed) {
    scene->update();
    ZrDbObjectId line;
    group(*database, L"LINE", [&] { line = addLine({1, 2, 3}, {4, 5, 6}); });
    scene->update();
    database->journal().undo();
    EXPECT_THAT(seen(), IsEmpty());
    database->journal().redo();
    EXPECT_THAT(seenOf(line).lines, ElementsAre(Line({1, 2, 3}, {4, 5, 6})));
}

TEST_F(SceneTest, AnInvisibleEntityIsNotShown) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    change<ZrDbLine>(line, [](ZrDbLine& each) { each.setVisibility(ZrDb::kInvisible); });
    EXPECT_THAT(seen(), IsEmpty());
}

TEST_F(SceneTest, ALayersColorIsThatOfItsEntities) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    ASSERT_THAT(seenOf(line).looks, ElementsAre(std::pair(kWhite, true)));
    change<ZrDbLayerTableRecord>(database->interface().layerZeroId(),
                                 [](ZrDbLayerTableRecord& layer) { layer.setColor(ZrCmColor::fromIndex(1)); });
    EXPECT_THAT(seenOf(line).looks, ElementsAre(std::pair(kRed, true)));
}

TEST_F(SceneTest, AnEntityMayHaveItsOwnColor) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    change<ZrDbLine>(line, [](ZrDbLine& each) { each.setColor(ZrCmColor::fromIndex(1)); });
    EXPECT_THAT(seenOf(line).looks, ElementsAre(std::pair(kRed, true)));
}

TEST_F(SceneTest, AnEntityThatGetsItsOwnColorKeepsItWhenItsLayerChanges) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    change<ZrDbLine>(line, [](ZrDbLine& each) { each.setColor(ZrCmColor::fromIndex(1)); });
    scene->update();
    change<ZrDbLayerTableRecord>(database->interface().layerZeroId(),
                                 [](ZrDbLayerTableRecord& layer) { layer.setColor(ZrCmColor::fromIndex(3)); });
    EXPECT_THAT(seenOf(line).looks, ElementsAre(std::pair(kRed, true)));
}

TEST_F(SceneTest, TheBoxOfAChunkHoldsWhatHasMoved) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    change<ZrDbLine>(line, [](ZrDbLine& each) { each.setEndPoint({70, 80, 90}); });
    EXPECT_TRUE(chunksHoldTheirItems(updated()));
}

TEST_F(SceneTest, WhatIsOnAFrozenLayerIsNotVisible) {
    const std::string layer = "0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nCold\n70\n1\n62\n1\n6\nContinuous\n0\nENDTAB\n";
    const std::string line = "0\nLINE\n5\nA1\n8\nCold\n10\n1\n20\n2\n30\n3\n11\n4\n21\n5\n31\n6\n";
    use(db::drawings::parsed(db::drawings::drawing("AC1009", {{}, {}, layer, line, {}})));
    EXPECT_THAT(seen()[0xA1].looks, ElementsAre(std::pair(kRed, false)));
    EXPECT_TRUE(scene->extents().isEmpty());
}

TEST_F(SceneTest, WhatIsOnALayerThatIsOffIsNotVisible) {
    const std::string layer = "0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nDark\n70\n0\n62\n-1\n6\nContinuous\n0\nENDTAB\n";
    const std::string line = "0\nLINE\n5\nA1\n8\nDark\n10\n1\n20\n2\n30\n3\n11\n4\n21\n5\n31\n6\n";
    use(db::drawings::parsed(db::drawings::drawing("AC1009", {{}, {}, layer, line, {}})));
    EXPECT_THAT(seen()[0xA1].looks, ElementsAre(std::pair(kRed, false)));
}

TEST_F(SceneTest, AHiddenLayerIsVisible) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    change<ZrDbLayerTableRecord>(database->interface().layerZeroId(),
                                 [](ZrDbLayerTableRecord& layer) { layer.setIsHidden(true); });
    EXPECT_THAT(seenOf(line).looks, ElementsAre(std::pair(kWhite, true)));
}

TEST_F(SceneTest, AnotherSpaceIsShownWhenItBecomesCurrent) {
    const ZrDbObjectId inModel = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    database->setModelTab(false);
    EXPECT_THAT(seen(), IsEmpty());
    const ZrDbObjectId onSheet = addLine({7, 8, 0}, {9, 9, 0});
    EXPECT_THAT(seenOf(onSheet).lines, ElementsAre(Line({7, 8, 0}, {9, 9, 0})));
    database->setModelTab(true);
    EXPECT_THAT(seenOf(inModel).lines, ElementsAre(Line({1, 2, 3}, {4, 5, 6})));
}

TEST_F(SceneTest, FarFromTheOriginLinesAreAsExact) {
    scene->update();
    const ZrDbObjectId line = addLine({1e7, 2e7, 3e7}, {1e7 + 0.125, 2e7, 3e7});
    EXPECT_THAT(seenOf(line).lines, ElementsAre(Line({1e7, 2e7, 3e7}, {1e7 + 0.125, 2e7, 3e7})));
}

TEST_F(SceneTest, AStrayEntityTakesNoPrecisionFromTheOthers) {
    addLine({0, 0, 0}, {1, 0, 0});
    addLine({1e7, 2e7, 0}, {1e7 + 1, 2e7, 0});
    const std::uint64_t line = addLine({1e7 + 0.125, 2e7, 0}, {1e7 + 1.125, 2e7, 0}).handle().value();
    use(db::drawings::reopened(*database));
    EXPECT_THAT(seen()[line].lines, ElementsAre(Line({1e7 + 0.125, 2e7, 0}, {1e7 + 1.125, 2e7, 0})));
}

TEST_F(SceneTest, EntitiesAreKnownByTheirNumber) {
    const ZrDbObjectId first = addLine({1, 2, 3}, {4, 5, 6});
    const ZrDbObjectId second = addLine({1, 2, 3}, {4, 5, 6});
    erase(first);
    EXPECT_THAT(updated().entities, ElementsAre(ZrDbObjectId(), second));
}

TEST_F(SceneTest, SelectedAndHoveredEntitiesStandOut) {
    const ZrDbObjectId first = addLine({1, 2, 3}, {4, 5, 6});
    const ZrDbObjectId second = addLine({1, 2, 3}, {4, 5, 6});
    scene->update();
    scene->setHovered(first);
    scene->setSelected({second});
    EXPECT_TRUE(scene->update());
    EXPECT_THAT(scene->data().emphasis, ElementsAre(Emphasis::Hovered, Emphasis::Selected));
    scene->setHovered({});
    scene->setSelected({first});
    EXPECT_THAT(updated().emphasis, ElementsAre(Emphasis::Selected, Emphasis::None));
}

TEST_F(SceneTest, ContentsAreTheSameWhateverStandsOut) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    const std::uint64_t before = updated().contents;
    scene->setSelected({line});
    EXPECT_EQ(updated().contents, before);
    erase(line);
    EXPECT_NE(updated().contents, before);
}

TEST_F(SceneTest, TheSelectionStaysWhenAllIsMadeAnew) {
    const ZrDbObjectId line = addLine({1, 2, 3}, {4, 5, 6});
    scene->setSelected({line});
    scene->regenerate();
    EXPECT_THAT(updated().emphasis, ElementsAre(Emphasis::Selected));
}

TEST_F(SceneTest, ManyErasedEntitiesLeaveNoWasteBehind) {
    constexpr int kMany = 6000;
    std::vector<ZrDbObjectId> ids;
    for (int i = 0; i < kMany; ++i)
        ids.push_back(addLine({0, 0, 0}, {1.0 * i, 1, 0}));
    ASSERT_EQ(updated().lines.size(), kMany);
    for (int i = 0; i < kMany - 10; ++i)
        erase(ids[i]);
    EXPECT_EQ(updated().lines.size(), 10);
    expectFresh();
}

TEST_F(SceneTest, ProgressGoesUpToTheEnd) {
    for (int i = 0; i < 20000; ++i)
        addLine({0, 0, 0}, {1.0 * i, 1, 0});
    std::vector<double> told;
    scene->update([&](double share) { told.push_back(share); });
    EXPECT_GT(told.size(), 2);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), 1);
}

TEST_F(SceneTest, ADrawingThatIsGoneShowsNoChanges) {
    scene->update();
    database.reset();
    EXPECT_FALSE(scene->update());
}

struct SceneOfBlocks : db::RefEditing {
    std::map<std::uint64_t, Seen> seen() {
        scene.update();
        return seenIn(scene.data());
    }
    Scene scene{database->interface()};
};

TEST_F(SceneOfBlocks, AReferenceIsHiddenWhileItsBlockIsEdited) {
    ASSERT_TRUE(seen().contains(db::kPlain));
    begin(db::kPlain);
    EXPECT_FALSE(seen().contains(db::kPlain));
    EXPECT_TRUE(seen().contains(copyOf<ZrDbLine>().handle().value()));
    discard();
    EXPECT_TRUE(seen().contains(db::kPlain));
}

TEST_F(SceneOfBlocks, AllReferencesShowWhatWasSavedIntoTheirBlock) {
    const Seen before = seen()[db::kTurned];
    begin(db::kPlain);
    change<ZrDbLine>(copyOf<ZrDbLine>(), [](ZrDbLine& line) { line.setEndPoint({77, 88, 99}); });
    save();
    EXPECT_NE(seen()[db::kTurned], before);
    database->journal().undo();
    database->journal().undo();
    EXPECT_EQ(seen()[db::kTurned], before);
}

} // namespace
} // namespace quor::gs
