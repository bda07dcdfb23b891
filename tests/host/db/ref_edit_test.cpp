// luminaires.dxf: the block LAMP has the lights 43 (Pendant) and 46 (Spot), the line 49, the face 4A and the circle 4B.
#include "host/db/ref_edit.h"

#include "sdk/db/face.h"
#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr std::uint64_t kPlain = 0x60;
constexpr std::uint64_t kTurned = 0x61;
constexpr std::uint64_t kMirrored = 0x62;
constexpr std::uint64_t kStretched = 0x63;
constexpr std::uint64_t kTurnedOver = 0x64;
constexpr std::uint64_t kAslant = 0x6C;

struct RefEditing : testing::Test {
    ObjectEntry& entry(std::uint64_t handle) { return *database->objects().find(handle); }
    ZrDbObjectId id(std::uint64_t handle) { return ZrDbObjectId(&entry(handle)); }
    RefEdit& editing() { return database->refEdit(); }

    RefEditStart begin(std::uint64_t reference) {
        RefEditStart start;
        group(*database, L"REFEDIT", [&] { start = editing().begin(entry(reference)).value(); });
        return start;
    }
    RefEditResult save() {
        RefEditResult result;
        group(*database, L"REFCLOSE", [&] { result = editing().save().value(); });
        return result;
    }
    std::size_t discard() {
        std::size_t erased = 0;
        group(*database, L"REFCLOSE", [&] { erased = editing().discard().value(); });
        return erased;
    }
    std::vector<ZrDbObjectId> workset() {
        std::vector<ZrDbObjectId> ids = database->entities(database->interface().modelSpaceId());
        std::erase_if(ids, [&](ZrDbObjectId each) { return !editing().holds(*each.entry()); });
        return ids;
    }
    template <class T>
    ZrDbObjectId copyOf(std::size_t index = 0) {
        std::vector<ZrDbObjectId> ids = workset();
        std::erase_if(ids, [](ZrDbObjectId each) { return !ZrDbObjectPointer<T>(each, ZrDb::kForRead); });
        return ids.at(index);
    }
    ZrDbObjectId pendant() { return copyOf<ZrDbLight>(0); }
    ZrDbObjectId spot() { return copyOf<ZrDbLight>(1); }
    bool isVisible(std::uint64_t handle) {
        return ZrDbObjectPointer<ZrDbEntity>(id(handle), ZrDb::kForRead)->visibility() == ZrDb::kVisible;
    }
    // What a save would change in the file.
    Difference changes() { return difference(original, bytesOf(*database)); }

    const std::string original = fileBytes("own/luminaires.dxf");
    std::unique_ptr<Database> database = parsed(original);
};

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
    addLine(*database);

    EXPECT_EQ(discard(), 5U);

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

// Undo.

TEST_F(RefEditing, UndoGoesOutOfAnEditingThatWasBegun) {
    begin(kPlain);

    database->journal().undo();

    EXPECT_FALSE(editing().isActive());
    EXPECT_TRUE(isVisible(kPlain));
    EXPECT_EQ(bytesOf(*database), original);
    EXPECT_FALSE(database->journal().isModified());
}

TEST_F(RefEditing, RedoGoesBackIn) {
    begin(kPlain);
    database->journal().undo();

    database->journal().redo();

    EXPECT_EQ(editing().blockName(), L"LAMP");
    EXPECT_EQ(workset().size(), 4U);
    EXPECT_FALSE(isVisible(kPlain));
}

TEST_F(RefEditing, UndoResumesAnEditingThatWasSaved) {
    begin(kPlain);
    group(*database, L"CHANGE", [&] { change(spot(), [](ZrDbLight& light) { light.setIntensity(3); }); });
    erase(pendant());
    addLight(*database);
    const std::vector<ZrDbObjectId> before = workset();
    save();

    database->journal().undo();

    EXPECT_EQ(workset(), before);
    EXPECT_FALSE(isVisible(kPlain));
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(id(0x46), ZrDb::kForRead)->intensity(), 0.8);
    EXPECT_FALSE(id(0x43).isErased());
    discard();
    EXPECT_EQ(bytesOf(*database), original);
}

TEST_F(RefEditing, RedoSavesAgain) {
    begin(kPlain);
    change(spot(), [](ZrDbLight& light) { light.setIntensity(3); });
    save();
    const std::string saved = bytesOf(*database);
    database->journal().undo();

    database->journal().redo();

    EXPECT_FALSE(editing().isActive());
    EXPECT_EQ(bytesOf(*database), saved);
}

TEST_F(RefEditing, UndoResumesAnEditingThatWasDiscarded) {
    begin(kPlain);
    const ZrDbObjectId made = addLight(*database);
    discard();

    database->journal().undo();

    EXPECT_TRUE(editing().holds(*made.entry()));
    EXPECT_EQ(workset().size(), 5U);
}

TEST_F(RefEditing, WhatUndoTookAwayIsNotSaved) {
    begin(kPlain);
    group(*database, L"LINE", [&] { addLine(*database); });
    database->journal().undo();

    EXPECT_EQ(save().added, 0U);
}

// Refusals.

TEST_F(RefEditing, SaysWhyAReferenceIsNotEdited) {
    EXPECT_EQ(editing().whyNot(entry(0x69)), RefEditProblem::NoReference);
    EXPECT_EQ(editing().whyNot(entry(0x65)), RefEditProblem::Array);
    EXPECT_EQ(editing().whyNot(entry(0x66)), RefEditProblem::ExternalBlock);
    EXPECT_EQ(editing().whyNot(entry(0x67)), RefEditProblem::EmptyBlock);
    EXPECT_EQ(editing().whyNot(entry(kPlain)), std::nullopt);
}

TEST_F(RefEditing, AnErasedContentIsNone) {
    begin(0x68);
    discard();
    erase(id(0x59));

    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::EmptyBlock);
}

TEST_F(RefEditing, ABlockWithoutAnythingToCopyCanGetSomething) {
    EXPECT_EQ(begin(0x68).inWorkset, 0U);
    addLight(*database, L"First");

    EXPECT_EQ(save().added, 1U);

    EXPECT_THAT(recordOf(bytesOf(*database), "LIGHT", "1|First"), testing::Contains("330|56"));
}

TEST_F(RefEditing, OneAtATime) {
    begin(kPlain);

    EXPECT_EQ(editing().begin(entry(kTurned)).error(), RefEditProblem::AlreadyEditing);
}

// The drawing with a text replaced that stands in it once.
std::unique_ptr<Database> with(std::string bytes, const std::string& text, const std::string& other) {
    bytes.replace(bytes.find(text), text.size(), other);
    return parsed(bytes);
}

TEST_F(RefEditing, NeedsABlockOfThatName) {
    database = with(original, "  2\nPLAIN\n 10", "  2\nNOWHERE\n 10");
    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::NoBlock);
}

TEST_F(RefEditing, RefusesTheModel) {
    database = with(original, "  2\nPLAIN\n 10", "  2\n*Model_Space\n 10");
    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::SpaceBlock);
}

TEST_F(RefEditing, RefusesAScaleOfZero) {
    database = with(original, " 43\n0.5\n", " 43\n0\n");
    EXPECT_EQ(editing().whyNot(entry(kStretched)), RefEditProblem::ZeroScale);
}

TEST_F(RefEditing, RefusesABlockWithoutAnEnd) {
    database = with(original, "  0\nENDBLK\n  5\n58\n", "  0\nTRASH\n  5\n58\n");
    EXPECT_EQ(editing().whyNot(entry(0x68)), RefEditProblem::BrokenBlock);
}

TEST_F(RefEditing, RefusesAReferenceThatIsOpen) {
    const ZrDbObjectPointer<ZrDbEntity> reader(id(kPlain), ZrDb::kForRead);

    EXPECT_EQ(editing().begin(entry(kPlain)).error(), RefEditProblem::InUse);
}

TEST_F(RefEditing, ChangesNothingWhileAnObjectIsOpen) {
    begin(kPlain);
    change(spot(), [](ZrDbLight& light) { light.setIntensity(3); });
    const ZrDbObjectPointer<ZrDbLight> reader(id(0x46), ZrDb::kForRead);
    const ZrDbObjectPointer<ZrDbLight> copyReader(pendant(), ZrDb::kForRead);

    EXPECT_EQ(editing().save().error(), RefEditProblem::InUse);
    EXPECT_EQ(editing().discard().error(), RefEditProblem::InUse);

    EXPECT_EQ(workset().size(), 4U);
    EXPECT_EQ(reader->intensity(), 0.8);
}

TEST_F(RefEditing, KeepsAPointThatHasNoPlaceInTheBlock) {
    database = with(original, " 43\n0.5\n", " 43\n1e-9\n");
    begin(kStretched);
    change(spot(), [](ZrDbLight& light) { light.setPosition({0, 0, 1e300}); });

    EXPECT_EQ(editing().save().error(), RefEditProblem::TooFar);

    EXPECT_TRUE(editing().isActive());
    EXPECT_EQ(workset().size(), 4U);
}

TEST_F(RefEditing, LeavesWhatWouldLieBeyondAllNumbersInTheBlock) {
    database = with(original, " 43\n0.5\n", " 43\n1e308\n");

    const RefEditStart start = begin(kStretched);

    EXPECT_EQ(start.inWorkset, 2U); // the line and the face lie lower
    EXPECT_EQ(start.left, 3U);
}

TEST_F(RefEditing, TheDrawingIsNotSavedMeanwhile) {
    begin(kPlain);

    EXPECT_FALSE(database->toBytes().ok());
    EXPECT_NE(database->toBytes().error().message.find(L"LAMP"), ZrString::npos);
}

} // namespace
} // namespace quor::db
