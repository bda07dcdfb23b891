#include "sdk/db/face.h"
#include "tests/host/db/ref_editing.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(RefEditing, CopiesLightsLinesAndFacesAndLeavesTheRest) {
    const RefEditStart start = begin(kPlain);

    EXPECT_EQ(start.inWorkset, 4U);
    EXPECT_EQ(start.left, 1U);
    EXPECT_EQ(workset().size(), 4U);
}

TEST_F(RefEditing, PutsTheCopiesWhereTheReferenceShowsThem) {
    begin(kTurned);

    const ZrDbObjectPointer<ZrDbLight> light(spot(), ZrDb::kForRead);
    EXPECT_EQ(light->position(), ZrGePoint3d(200, 52, 15));
    EXPECT_EQ(light->targetLocation(), ZrGePoint3d(196, 52, 10));
    const ZrDbObjectPointer<ZrDbLine> line(copyOf<ZrDbLine>(), ZrDb::kForRead);
    EXPECT_EQ(line->startPoint(), ZrGePoint3d(200, 50, 10));
    EXPECT_EQ(line->endPoint(), ZrGePoint3d(200, 52, 10));
    ZrGePoint3d corner;
    ZrDbObjectPointer<ZrDbFace>(copyOf<ZrDbFace>(), ZrDb::kForRead)->getVertexAt(2, corner);
    EXPECT_EQ(corner, ZrGePoint3d(199, 51, 10.1));
}

TEST_F(RefEditing, CopiesKeepEveryOtherValue) {
    begin(kStretched);

    const ZrDbObjectPointer<ZrDbLight> light(spot(), ZrDb::kForRead);
    EXPECT_EQ(light->name(), L"Spot");
    EXPECT_EQ(light->layer(), L"*ADSK_SYSTEM_LIGHTS");
    EXPECT_EQ(light->lightType(), DrawableType::kSpotLight);
    EXPECT_EQ(light->intensity(), 0.8);
    EXPECT_EQ(light->physicalIntensity(), 1500);
    EXPECT_TRUE(light->hasTarget());
    EXPECT_NE(light->handle(), id(0x46).handle());
}

TEST_F(RefEditing, HoldsWhatIsMadeInTheSpaceMeanwhile) {
    begin(kPlain);

    const ZrDbObjectId light = addLight(*database);

    EXPECT_TRUE(editing().holds(*light.entry()));
}

TEST_F(RefEditing, HoldsNothingElse) {
    const ZrDbObjectId before = addLine(*database);
    begin(kPlain);
    const ZrDbObjectId onSheet = append(database->interface().paperSpaceId(), std::make_unique<ZrDbLine>());
    const ZrDbObjectId erased = addLine(*database);
    erase(erased);

    EXPECT_FALSE(editing().holds(*before.entry()));
    EXPECT_FALSE(editing().holds(*onSheet.entry()));
    EXPECT_FALSE(editing().holds(*erased.entry()));
    EXPECT_FALSE(editing().holds(entry(0x69)));
    EXPECT_FALSE(editing().holds(entry(0x43)));
    EXPECT_FALSE(editing().holds(entry(kPlain)));
}

TEST_F(RefEditing, HoldsNothingWhenItIsOver) {
    begin(kPlain);
    discard();

    EXPECT_FALSE(editing().holds(*addLight(*database).entry()));
}

TEST_F(RefEditing, HidesTheReferenceForTheTime) {
    begin(kPlain);
    EXPECT_FALSE(isVisible(kPlain));
    EXPECT_TRUE(isVisible(kTurned));

    save();
    EXPECT_TRUE(isVisible(kPlain));
}

TEST_F(RefEditing, NamesTheBlock) {
    EXPECT_EQ(editing().blockName(), L"");

    begin(kPlain);

    EXPECT_EQ(editing().blockName(), L"LAMP");
}

TEST_F(RefEditing, ErasesTheWorkingSetAtTheEnd) {
    begin(kPlain);
    const ZrDbObjectId copy = spot();
    const ZrDbObjectId made = addLine(*database);

    discard();

    EXPECT_TRUE(copy.isErased());
    EXPECT_TRUE(made.isErased());
    EXPECT_EQ(lightOf(*database), id(0x69));
    EXPECT_FALSE(editing().isActive());
}

// Each reference to the block, whatever it does to it.
struct EveryAttitude : RefEditing, testing::WithParamInterface<std::uint64_t> {};

TEST_P(EveryAttitude, SavingWhatWasNotTouchedLeavesTheFileAsItWas) {
    begin(GetParam());

    const RefEditResult result = save();

    EXPECT_EQ(result.changed + result.added + result.erased, 0U);
    EXPECT_EQ(bytesOf(*database), original);
}

TEST_P(EveryAttitude, DiscardingLeavesTheFileAsItWas) {
    begin(GetParam());
    change(spot(), [](ZrDbLight& light) { light.setIntensity(3); });
    erase(pendant());
    addLight(*database);

    discard();

    EXPECT_EQ(bytesOf(*database), original);
}

TEST_P(EveryAttitude, AChangedValueIsTheOnlyThingThatChanges) {
    begin(GetParam());
    change(spot(), [](ZrDbLight& light) { light.setIntensity(3); });

    EXPECT_EQ(save().changed, 1U);

    EXPECT_THAT(changes().gone, ElementsAre("40|0.8"));
    EXPECT_THAT(changes().come, ElementsAre("40|3.0"));
}

TEST_P(EveryAttitude, AMovedPointComesBackToTheBlock) {
    begin(GetParam());
    const ZrGePoint3d shownStart = ZrDbObjectPointer<ZrDbLine>(copyOf<ZrDbLine>(), ZrDb::kForRead)->startPoint();
    ZrDbObjectPointer<ZrDbLine>(copyOf<ZrDbLine>(), ZrDb::kForWrite)->setEndPoint(shownStart);

    save();

    const ZrDbObjectPointer<ZrDbLine> line(id(0x49), ZrDb::kForRead);
    EXPECT_EQ(line->startPoint(), ZrGePoint3d(10, 20, 0));
    EXPECT_LT(line->endPoint().distanceTo({10, 20, 0}), 1e-12);
}

TEST_P(EveryAttitude, ANewLightGoesIntoTheBlock) {
    begin(GetParam());
    const ZrGePoint3d shown = ZrDbObjectPointer<ZrDbLight>(spot(), ZrDb::kForRead)->position();
    const ZrDbObjectId made = addLight(*database, L"Uplight");
    change(made, [&](ZrDbLight& light) { light.setPosition(shown); });

    EXPECT_EQ(save().added, 1U);

    const auto saved = reopened(*database);
    const ZrDbObjectPointer<ZrDbLight> light(
        saved->lastEntity(ZrDbObjectId(saved->structure().findBlock(L"LAMP")->record)), ZrDb::kForRead);
    EXPECT_EQ(light->name(), L"Uplight");
    EXPECT_LT(light->position().distanceTo({12, 20, 5}), 1e-12);
    EXPECT_EQ(light->physicalIntensity(), 1500);
    EXPECT_EQ(lightOf(*saved).handle(), id(0x69).handle());
}

INSTANTIATE_TEST_SUITE_P(RefEditing, EveryAttitude,
                         testing::Values(kPlain, kTurned, kMirrored, kStretched, kTurnedOver, kAslant));

TEST_F(RefEditing, OnlyTheCoordinatesOfAMovedPointChange) {
    begin(kTurned);
    change(spot(), [](ZrDbLight& light) { light.setPosition({200, 52, 16}); });

    save();

    EXPECT_THAT(changes().gone, ElementsAre("30|5.0"));
    EXPECT_THAT(changes().come, ElementsAre("30|6.0"));
}

TEST_F(RefEditing, AChangeTakenBackIsNone) {
    begin(kMirrored);
    change(spot(), [](ZrDbLight& light) { light.setName(L"Other"); });
    change(spot(), [](ZrDbLight& light) { light.setName(L"Spot"); });

    EXPECT_EQ(save().changed, 0U);
}

TEST_F(RefEditing, WhatTheHostDoesNotKnowOfAChangedLineStays) {
    begin(kPlain);
    ZrDbObjectPointer<ZrDbLine>(copyOf<ZrDbLine>(), ZrDb::kForWrite)->setEndPoint({105, 0, 0});

    save();

    const std::vector<std::string> line = recordOf(bytesOf(*database), "LINE", "5|49");
    EXPECT_THAT(line, testing::Contains("11|15.0"));
    EXPECT_THAT(line, testing::Contains("1000|kept with the line"));
}

TEST_F(RefEditing, AnErasedCopyErasesItsOriginalWithItsPhotometricData) {
    begin(kPlain);
    erase(spot());

    EXPECT_EQ(save().erased, 1U);

    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "LIGHT", "5|46"), IsEmpty());
    EXPECT_THAT(recordOf(bytes, "DICTIONARY", "5|47"), IsEmpty());
    EXPECT_THAT(recordOf(bytes, "XRECORD", "5|48"), IsEmpty());
    EXPECT_FALSE(recordOf(bytes, "LIGHT", "5|43").empty());
}

TEST_F(RefEditing, WhatIsMadeAndErasedMeanwhileIsNowhere) {
    begin(kPlain);
    erase(addLight(*database));

    EXPECT_EQ(save().added, 0U);
    EXPECT_EQ(bytesOf(*database), original);
}

TEST_F(RefEditing, ARenamedLightGoesByItsNewNameInTheBlock) {
    const ZrDbObjectPointer<ZrDbBlockTableRecord> block(id(0x40), ZrDb::kForRead);
    ASSERT_TRUE(block->hasLightNamed(L"Pendant"));
    begin(kPlain);
    change(pendant(), [](ZrDbLight& light) { light.setName(L"Globe"); });

    save();

    EXPECT_TRUE(block->hasLightNamed(L"Globe"));
    EXPECT_FALSE(block->hasLightNamed(L"Pendant"));
}

TEST_F(RefEditing, ALightMovedToAnotherLayerIsOnItInTheBlock) {
    begin(kPlain);
    change(pendant(), [](ZrDbLight& light) { light.setLayer(L"0"); });

    save();

    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(id(0x43), ZrDb::kForRead)->layer(), L"0");
}

TEST_F(RefEditing, ALayerThatTheTableLacksStays) {
    std::string bytes = original;
    const std::string layer = "AcDbEntity\n  8\n0\n100\nAcDbLine\n";
    bytes.replace(bytes.find(layer), layer.size(), "AcDbEntity\n  8\nGone\n100\nAcDbLine\n");
    database = parsed(bytes);
    begin(kPlain);
    ZrDbObjectPointer<ZrDbLine>(copyOf<ZrDbLine>(), ZrDb::kForWrite)->setLayer(L"0"); // as it has been copied
    ZrDbObjectPointer<ZrDbLine>(copyOf<ZrDbLine>(), ZrDb::kForWrite)->setEndPoint({105, 0, 0});

    save();

    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(id(0x49), ZrDb::kForRead)->layer(), L"Gone");
}

TEST_F(RefEditing, ALightWithoutPhotometricDataGetsThemWhenTheyChange) {
    std::string bytes = original;
    const std::string link = "102\n{ACAD_XDICTIONARY\n360\n47\n102\n}\n";
    bytes.erase(bytes.find(link), link.size());
    database = parsed(bytes);
    begin(kPlain);
    change(spot(), [](ZrDbLight& light) { light.setPhysicalIntensity(750); });

    save();

    const auto saved = reopened(*database);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(saved->interface().objectId(ZrDbHandle(0x46)), ZrDb::kForRead)
                  ->physicalIntensity(),
              750);
}

TEST_F(RefEditing, ABlockWithoutAnythingToCopyCanGetSomething) {
    EXPECT_EQ(begin(0x68).inWorkset, 0U);
    addLight(*database, L"First");

    EXPECT_EQ(save().added, 1U);

    EXPECT_THAT(recordOf(bytesOf(*database), "LIGHT", "1|First"), testing::Contains("330|56"));
}

TEST_F(RefEditing, OfAReferenceOnASheetIsOnThatSheet) {
    database =
        with(original, "  5\n60\n330\n1F\n100\nAcDbEntity\n", "  5\n60\n330\n1B\n100\nAcDbEntity\n 67\n     1\n");
    const ZrDbObjectId sheet = database->interface().paperSpaceId();

    begin(kPlain);

    EXPECT_EQ(database->entities(sheet).size(), 5U);
    EXPECT_THAT(workset(), IsEmpty());
    EXPECT_TRUE(editing().holds(*database->lastEntity(sheet).entry()));
    EXPECT_FALSE(editing().holds(*addLight(*database).entry()));
    EXPECT_EQ(save().added, 0U);
}

TEST_F(RefEditing, TheErasedReferenceStaysErased) {
    begin(kPlain);
    erase(id(kPlain));
    change(spot(), [](ZrDbLight& light) { light.setIntensity(3); });

    save();

    EXPECT_TRUE(id(kPlain).isErased());
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(id(0x46), ZrDb::kForRead)->intensity(), 3);
}

TEST_F(RefEditing, OneBlockAfterTheOther) {
    begin(kPlain);
    change(spot(), [](ZrDbLight& light) { light.setName(L"First"); });
    save();
    begin(kTurned);

    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(spot(), ZrDb::kForRead)->name(), L"First");
    EXPECT_EQ(workset().size(), 4U);
}

} // namespace
} // namespace quor::db
