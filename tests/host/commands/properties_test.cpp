#include "host/document.h"
#include "sdk/db/database.h"
#include "sdk/db/line.h"
#include "sdk/ed/macro.h"
#include "sdk/ed/selection.h"
#include "sdk/rx/command.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <memory>

namespace quor {

namespace {

class Counter final : public ZrEdSelectionReactor {
public:
    void impliedSelectionChanged() override { ++changes; }
    int changes = 0;
};

class Properties : public ::testing::Test {
protected:
    static ZrDbObjectId addLine(double x) {
        auto line = std::make_unique<ZrDbLine>(ZrGePoint3d(x, 0, 0), ZrGePoint3d(x, 1, 0));
        const ZrDbObjectId id = RxCommand::postToDb(*line, nullptr, nullptr, true);
        static_cast<void>(line.release()); // the drawing's now
        return id;
    }

    test::TestSession host{{.language = L"en"}};
    ZrDbObjectId first = addLine(7);
    ZrDbObjectId second = addLine(8);
};

TEST_F(Properties, ShowTheSelectedObjectsAndKeepThemSelected) {
    zredSetImpliedSelection({second});

    const ed::Verdict verdict = host.run({L"PROPERTIES"});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Done);
    EXPECT_TRUE(host.front().shows(L"X=8.0000"));
    EXPECT_FALSE(host.front().shows(L"X=7.0000"));
    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{second});
}

TEST_F(Properties, TellNobodyOfASelectionThatStaysAsItIs) {
    zredSetImpliedSelection({second, first});
    Counter counter;
    zredAddSelectionReactor(&counter);

    host.run({L"PROPERTIES"});
    zredRemoveSelectionReactor(&counter);

    EXPECT_EQ(counter.changes, 0);
}

TEST_F(Properties, AskWhereNothingIsSelectedAndSelectWhatIsPickedThen) {
    host.run({L"PROPERTIES", L"LAST", L""});

    EXPECT_TRUE(host.front().shows(L"X=8.0000"));
    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{second});
}

TEST_F(Properties, SelectNothingWhereNothingIsPicked) {
    host.run({L"PROPERTIES", L""});

    EXPECT_TRUE(zredImpliedSelection().empty());
}

TEST_F(Properties, AreCancelledByEscape) {
    EXPECT_EQ(host.run({L"PROPERTIES", L"LAST", L"^C"}).kind, ed::Verdict::Kind::Cancelled);
    EXPECT_TRUE(zredImpliedSelection().empty());
}

TEST_F(Properties, RunAsAMacroUnderTheirGlobalName) {
    zredSetImpliedSelection({first});
    ASSERT_EQ(zredMenuMacro(L"_properties", false, true), RTNORM);

    host.run({});

    EXPECT_TRUE(host.front().shows(L"X=7.0000"));
    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{first});
}

class AliasOfProperties : public Properties, public ::testing::WithParamInterface<const wchar_t*> {};

TEST_P(AliasOfProperties, ShowsThem) {
    zredSetImpliedSelection({first});
    host.run({GetParam()});
    EXPECT_TRUE(host.front().shows(L"X=7.0000"));
}

INSTANTIATE_TEST_SUITE_P(Words, AliasOfProperties, ::testing::Values(L"PR", L"ch", L"MO", L"props"));

} // namespace

} // namespace quor
