// Lights that wait for the end of the command: which ones are kept, and what becomes of them then.
#include "sdk/db/database.h"
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

constexpr const wchar_t* everyKind = L"" QUOR_TEST_DATA "/dxf/own/every_kind.dxf";

class PendingLights : public ShownPaletteTest {
protected:
    static ZrDbObjectId firstLight() {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        return space->newIterator(ZrDbLight::desc())->entityId();
    }
};

TEST_F(PendingLights, AnAppendedLightThatIsAsItsFileHasItIsLeftAlone) {
    type({L"OPEN", everyKind});
    const ZrDbObjectId fromFile = firstLight();
    dialog().clearList();

    tell(&CZrLightList::lightAppended, fromFile);
    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

TEST_F(PendingLights, ALightFromAFileIsFollowedOnceItIsTouched) {
    type({L"OPEN", everyKind});
    const ZrDbObjectId fromFile = firstLight();
    dialog().clearList();

    tell(&CZrLightList::lightTouched, fromFile);
    palette().commandFinished();

    EXPECT_EQ(names().size(), 1U);
}

TEST_F(PendingLights, ANullObjectIsLeftAlone) {
    palette().lightAppended(nullptr, nullptr);
    palette().lightChangedNow(nullptr, nullptr);
    palette().lightTouched(nullptr, nullptr);
    palette().lightTouchedByUndo(nullptr, nullptr);
    palette().lightTouchedByRedo(nullptr, nullptr);
    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

TEST_F(PendingLights, OfSeveralModifiedLightsTheLastOneIsBroughtUpToDate) {
    const ZrDbObjectId first = make(L"First");
    const ZrDbObjectId second = make(L"Second");

    asCommand([&] {
        ZrDbObjectPointer<ZrDbLight>(first, ZrDb::kForWrite)->setName(L"Red");
        ZrDbObjectPointer<ZrDbLight>(second, ZrDb::kForWrite)->setName(L"Blue");
    });

    EXPECT_EQ(names(), (Names{L"First", L"Blue"}));
}

TEST_F(PendingLights, ACommandThatMakesALightBringsNoOtherUpToDate) {
    const ZrDbObjectId old = make(L"Old");

    asCommand([&] {
        type({L"POINTLIGHT", L"1,2,3", L"N", L"New", L"X"});
        ZrDbObjectPointer<ZrDbLight>(old, ZrDb::kForWrite)->setName(L"Renamed");
    });

    EXPECT_EQ(names(), (Names{L"New", L"Old"}));
}

TEST_F(PendingLights, TheTouchedLightIsStillKnownAfterTheNewOnesWereAdded) {
    const ZrDbObjectId old = make(L"Old");
    make(L"New");
    palette().commandStarting();
    tell(&CZrLightList::lightAppended, old);
    palette().commandFinished();
    erase(old);
    dialog().clearList();
    palette().commandStarting();
    erase(old, false);
    dialog().clearList();
    tell(&CZrLightList::lightAppended, old);

    palette().commandFinished();
    ASSERT_EQ(names(), Names{L"Old"});
    dialog().clearList();
    palette().commandFinished();

    EXPECT_EQ(names(), Names{L"Old"});
}

TEST_F(PendingLights, ALightThatWasTouchedIsLookedAtOnce) {
    const ZrDbObjectId lamp = make(L"Lamp");
    tell(&CZrLightList::lightTouched, lamp);
    palette().commandFinished();
    dialog().clearList();

    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

TEST_F(PendingLights, ACommandThatStartsForgetsWhatWaits) {
    const ZrDbObjectId appended = make(L"Appended");
    const ZrDbObjectId touched = make(L"Touched");
    dialog().clearList();
    tell(&CZrLightList::lightAppended, appended);
    tell(&CZrLightList::lightTouched, touched);

    palette().commandStarting();
    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

TEST_F(PendingLights, AnErasedLightThatIsTouchedDoesNotReplaceTheOneBefore) {
    const ZrDbObjectId lamp = make(L"Lamp");
    const ZrDbObjectId erased = make(L"Erased");
    erase(erased);
    dialog().clearList();
    palette().commandStarting();

    tell(&CZrLightList::lightTouched, lamp);
    tell(&CZrLightList::lightTouched, erased);
    palette().commandFinished();

    EXPECT_EQ(names(), Names{L"Lamp"});
}

class LightsTouchedByHistory
    : public PendingLights,
      public testing::WithParamInterface<void (CZrLightList::*)(const ZrDbDatabase*, const ZrDbObject*)> {};

TEST_P(LightsTouchedByHistory, AnErasedLightReplacesTheOneBefore) {
    const ZrDbObjectId lamp = make(L"Lamp");
    const ZrDbObjectId erased = make(L"Erased");
    erase(erased);
    dialog().clearList();
    palette().commandStarting();

    tell(&CZrLightList::lightTouched, lamp);
    tell(GetParam(), erased);
    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

TEST_P(LightsTouchedByHistory, ALightIsBroughtUpToDateAtTheEndOfTheCommand) {
    const ZrDbObjectId lamp = make(L"Lamp");
    dialog().clearList();
    palette().commandStarting();

    tell(GetParam(), lamp);
    EXPECT_TRUE(names().empty());
    palette().commandFinished();

    EXPECT_EQ(names(), Names{L"Lamp"});
}

INSTANTIATE_TEST_SUITE_P(All, LightsTouchedByHistory,
                         testing::Values(&CZrLightList::lightTouchedByUndo, &CZrLightList::lightTouchedByRedo));

TEST_F(PendingLights, AnErasedLightIsNotAppended) {
    const ZrDbObjectId erased = make(L"Erased");
    erase(erased);
    palette().commandStarting();

    tell(&CZrLightList::lightAppended, erased);
    ZrDbObjectPointer<ZrDbLight>(erased, ZrDb::kForWrite, true)->erase(false);
    dialog().clearList();
    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

TEST_F(PendingLights, ALightThatIsOpenForWriteAtTheEndOfTheCommandIsSkipped) {
    const ZrDbObjectId lamp = make(L"Lamp");
    dialog().clearList();
    palette().commandStarting();
    tell(&CZrLightList::lightAppended, lamp);
    const ZrDbObjectPointer<ZrDbLight> writer(lamp, ZrDb::kForWrite);

    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

// Their drawing may be gone by the time the command ends.
TEST_F(PendingLights, LightsOfADrawingThatIsLeftAreForgotten) {
    const ZrDbObjectId lamp = make(L"Lamp");
    palette().commandStarting();
    tell(&CZrLightList::lightAppended, lamp);
    tell(&CZrLightList::lightTouched, lamp);

    session_.session().documents().newDocument();
    palette().commandFinished();

    EXPECT_TRUE(names().empty());
}

} // namespace
} // namespace quor::test
