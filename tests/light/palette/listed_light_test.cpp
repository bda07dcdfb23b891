// Which objects the list follows.
#include "light/palette/listed_light.h"

#include "sdk/db/database.h"
#include "tests/light/palette/palette_test.h"

namespace quor::test {
namespace {

class ListedLight : public PaletteTest {
protected:
    static bool isListed(ZrDbObjectId id) {
        const ZrDbObjectPointer<ZrDbObject> object(id, ZrDb::kForRead, true);
        return light::isListedLight(object.object());
    }
};

TEST_F(ListedLight, NothingIsNot) { EXPECT_FALSE(light::isListedLight(nullptr)); }

TEST_F(ListedLight, ALightOutsideADrawingIsNot) {
    const ZrDbLight light;

    EXPECT_FALSE(light::isListedLight(&light));
}

TEST_F(ListedLight, ALightOnTheHiddenLayerIs) { EXPECT_TRUE(isListed(make(L"Lamp"))); }

TEST_F(ListedLight, AnErasedLightIs) {
    const ZrDbObjectId lamp = make(L"Lamp");
    erase(lamp);

    EXPECT_TRUE(isListed(lamp));
}

TEST_F(ListedLight, ALightOfADerivedClassIs) {
    EXPECT_TRUE(isListed(make({.name = L"Derived"}, std::make_unique<DerivedLight>())));
}

TEST_F(ListedLight, TheLetterCaseOfTheLayerDoesNotMatter) {
    EXPECT_TRUE(isListed(make({.name = L"Lamp", .layer = L"adsk_system_lights"})));
}

TEST_F(ListedLight, ALightOnAVisibleLayerOfThatNameIsNot) {
    EXPECT_FALSE(isListed(make({.name = L"Lamp", .hiddenLayer = false})));
}

TEST_F(ListedLight, ALightOnAnotherLayerIsNot) {
    EXPECT_FALSE(isListed(make({.name = L"Lamp", .layer = L"LAMPS"})));
    EXPECT_FALSE(isListed(make({.name = L"Lamp", .layer = L"ADSK_SYSTEM_LIGHTS_2"})));
}

TEST_F(ListedLight, ALightOutsideTheCurrentSpaceIsNot) {
    const ZrDbObjectId model = make(L"Model");
    const ZrDbObjectId paper = make({.name = L"Paper", .space = L"*Paper_Space"});
    EXPECT_FALSE(isListed(paper));

    type({L"TILEMODE", L"0"});

    EXPECT_TRUE(isListed(paper));
    EXPECT_FALSE(isListed(model));
}

TEST_F(ListedLight, ALightOfAnotherDrawingIsNot) {
    const ZrDbObjectId lamp = make(L"Lamp");

    session_.session().documents().newDocument();

    EXPECT_FALSE(isListed(lamp));
}

TEST_F(ListedLight, WithoutACurrentDrawingNoneIs) {
    const ZrDbObjectId lamp = make(L"Lamp");

    session_.session().documents().setCurrent(nullptr);

    EXPECT_FALSE(isListed(lamp));
}

TEST_F(ListedLight, WhatIsNoLightIsNot) { EXPECT_FALSE(isListed(zrdbWorkingDatabase()->modelSpaceId())); }

} // namespace
} // namespace quor::test
