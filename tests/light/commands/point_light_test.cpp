#include "light/commands/point_light.h"

#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// POINTLIGHT that begins with a light of another kind, aimed by hand.
class AimedPointLight : public CZrPointLightCmd {
public:
    [[nodiscard]] const wchar_t* kindWord() const { return m_kindWord; }

protected:
    bool placeLight() override {
        m_pLight->setLightType(DrawableType::kSpotLight);
        m_pLight->setHasTarget(true);
        return CZrPointLightCmd::placeLight();
    }
};

class PointLightTest : public testing::Test {
protected:
    PointLightTest() {
        session_.addCommand(L"POINT", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    int run() { return session_.session().processor().run(L"POINT", false).result; }
    test::ScriptedFrontEnd& front() { return session_.front(); }
    static ZrDbObjectId firstLight() {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        return space->newIterator(ZrDbLight::desc())->entityId();
    }

    test::TestSession session_;
    AimedPointLight command_;
};

TEST_F(PointLightTest, WhateverItBeganAsItIsAPointLightWithoutATarget) {
    front().type({L"1,2,3", L""});

    EXPECT_EQ(run(), RTNORM);

    const ZrDbObjectPointer<ZrDbLight> light(firstLight(), ZrDb::kForRead);
    ASSERT_TRUE(light);
    EXPECT_EQ(light->lightType(), DrawableType::kPointLight);
    EXPECT_FALSE(light->hasTarget());
}

TEST_F(PointLightTest, ItsKindWordIsPoint) { EXPECT_STREQ(command_.kindWord(), L"Point"); }

TEST_F(PointLightTest, InputThatBreaksAtTheNameIsToldAsAnInvalidName) {
    front().type({L"1,2,3", L"N"});
    front().breakInput();

    EXPECT_EQ(run(), RTCAN);

    EXPECT_TRUE(front().shows(L"\n\"\"是无效光源名称。\n"));
    EXPECT_FALSE(firstLight().isValid());
}

} // namespace
} // namespace quor
