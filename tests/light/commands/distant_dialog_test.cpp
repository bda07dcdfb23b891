#include "light/commands/distant_dialog.h"

#include "light/commands/distant_light.h"
#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/task_dialog.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>
#include <optional>

namespace quor {
namespace {

constexpr const wchar_t* setting = L"allowParallelLightDialog";

class DistantDialogTest : public testing::Test {
protected:
    [[nodiscard]] test::ScriptedFrontEnd& front() { return session_.front(); }
    bool answerTo(const ZrString& typed) {
        front().type(typed);
        return light::askDistantLightsAllowed(false);
    }
    // The value behind the check box; none when it was never written.
    static std::optional<int> written() {
        int value = 0;
        return zwutads::GetValueFromReg(setting, value) ? std::optional(value) : std::nullopt;
    }

    test::TestSession session_;
};

TEST_F(DistantDialogTest, ItOffersTwoChoicesACheckBoxAndCancel) {
    answerTo(L"1");

    ASSERT_TRUE(front().lastDialog());
    const CZrUiTaskDialog& dialog = *front().lastDialog();
    EXPECT_EQ(dialog.title(), L"光源 - 光度控制平行光");
    EXPECT_EQ(dialog.instruction(), L"光源单位是光度控制单位时，使用平行光可能会导致过度曝光。希望执行什么操作？");
    ASSERT_EQ(dialog.commands().size(), 2U);
    EXPECT_EQ(dialog.commands()[0].id, 6998);
    EXPECT_EQ(dialog.commands()[0].text, L"光源单位是光度控制单位时,禁用平行光 (建议)");
    EXPECT_EQ(dialog.commands()[0].explanation, L"");
    EXPECT_EQ(dialog.commands()[1].id, 6999);
    EXPECT_EQ(dialog.commands()[1].text, L"允许平行光");
    EXPECT_EQ(dialog.commands()[1].explanation, L"");
    EXPECT_EQ(dialog.recommended(), 6998);
    EXPECT_EQ(dialog.checkbox(), L"始终允许平行光(不建议)");
    EXPECT_EQ(dialog.options(), 0x19);
    EXPECT_EQ(dialog.buttons(), 8);
    EXPECT_EQ(dialog.width(), 500);
}

TEST_F(DistantDialogTest, TheFirstChoiceForbidsAndTheSecondAllows) {
    EXPECT_FALSE(answerTo(L"1"));
    EXPECT_TRUE(answerTo(L"2"));

    EXPECT_EQ(written(), std::nullopt);
}

TEST_F(DistantDialogTest, EnterForbids) { EXPECT_FALSE(answerTo(L"")); }

TEST_F(DistantDialogTest, EscForbidsAndWritesNothing) {
    EXPECT_FALSE(answerTo(L"^C"));

    EXPECT_EQ(written(), std::nullopt);
}

TEST_F(DistantDialogTest, ATickThatIsCancelledIsNotWritten) {
    front().answerDialog({std::nullopt, true, false});

    EXPECT_FALSE(light::askDistantLightsAllowed(false));

    EXPECT_EQ(written(), std::nullopt);
}

TEST_F(DistantDialogTest, InputThatBreaksForbids) {
    front().breakInput();

    EXPECT_FALSE(light::askDistantLightsAllowed(false));

    EXPECT_EQ(written(), std::nullopt);
}

TEST_F(DistantDialogTest, ATickIsWrittenAlsoWhereTheLightIsForbidden) {
    EXPECT_FALSE(answerTo(L"1+"));

    EXPECT_EQ(written(), 1);
    EXPECT_TRUE(light::askDistantLightsAllowed(false)); // and asks nothing any more
    EXPECT_EQ(front().asked().size(), 1U);
}

TEST_F(DistantDialogTest, ATickIsWrittenWhereTheLightIsAllowed) {
    EXPECT_TRUE(answerTo(L"2+"));

    EXPECT_EQ(written(), 1);
}

TEST_F(DistantDialogTest, AValueOf0Asks) {
    zwutads::SetValueFromReg(setting, 0);

    EXPECT_FALSE(answerTo(L"1"));

    EXPECT_EQ(front().asked().size(), 1U);
}

TEST_F(DistantDialogTest, AnyOtherValueAsksNothing) {
    zwutads::SetValueFromReg(setting, -1);

    EXPECT_TRUE(light::askDistantLightsAllowed(false));

    EXPECT_TRUE(front().asked().empty());
}

TEST_F(DistantDialogTest, AProgramIsAskedNothing) {
    EXPECT_TRUE(light::askDistantLightsAllowed(true));

    EXPECT_TRUE(front().asked().empty());
}

TEST_F(DistantDialogTest, WithGenericUnitsNothingIsAsked) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_TRUE(light::askDistantLightsAllowed(false));

    EXPECT_TRUE(front().asked().empty());
}

TEST_F(DistantDialogTest, WithFootCandlesItIsAsked) {
    zwutads::setVar(L"LIGHTINGUNITS", 1);

    EXPECT_FALSE(answerTo(L"1"));

    EXPECT_EQ(front().asked().size(), 1U);
}

TEST_F(DistantDialogTest, ACommandThatIsForbiddenFailsWithoutALight) {
    session_.addCommand(L"DISTANT", [] { return CZrDistantLightCmd().execute(); });
    zwutads::setVar(L"DEFAULTLIGHTING", 0);
    front().type(L"1");

    EXPECT_EQ(session_.session().processor().run(L"DISTANT", false).result, RTERROR);

    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
    EXPECT_EQ(space->entityCount(ZrDbLight::desc()), 0U);
}

} // namespace
} // namespace quor
