// What can be selected while a block is edited in place: of luminaires.dxf, where the reference 60 to the block LAMP
// stands among ten other objects.
#include "host/db/ref_edit.h"
#include "host/sys/utf8.h"
#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/format.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

struct WorksetSelection : testing::Test {
    WorksetSelection() {
        host.run({L"OPEN", fromUtf8(QUOR_TEST_DATA "/dxf/own/luminaires.dxf"), L"REFEDIT", L"#60", L""});
    }
    ZrDbObjectId object(std::uint64_t handle) { return host.document().database()->objectId(ZrDbHandle(handle)); }
    ZrDbObjectId last() { return host.document().drawing().lastEntity(host.document().database()->currentSpaceId()); }
    int select(std::initializer_list<ZrString> lines) {
        host.front().type(lines);
        return zredSelect(nullptr, ids);
    }
    [[nodiscard]] bool allInWorkset() {
        const db::RefEdit& editing = host.document().drawing().refEdit();
        return std::ranges::all_of(ids, [&](ZrDbObjectId id) { return editing.holds(*id.entry()); });
    }

    test::TestSession host{{.language = L"en"}};
    ZrDbObjectIdArray ids;
};

TEST_F(WorksetSelection, AllIsTheWorkingSet) {
    EXPECT_EQ(select({L"ALL", L""}), RTNORM);

    EXPECT_EQ(ids.size(), 4U);
    EXPECT_TRUE(allInWorkset());
    EXPECT_TRUE(host.front().shows(L"4 found"));
    EXPECT_TRUE(host.front().shows(L"10 not selected: not in the working set of block \"LAMP\"."));
}

TEST_F(WorksetSelection, AWindowTakesNothingElse) {
    EXPECT_EQ(select({L"W", L"-10000,-10000", L"10000,10000", L""}), RTNORM);

    EXPECT_EQ(ids.size(), 4U);
    EXPECT_TRUE(allInWorkset());
}

TEST_F(WorksetSelection, TheHiddenReferenceHasAHandleOfNoUse) {
    EXPECT_EQ(select({L"#60", L""}), RTNONE);

    EXPECT_TRUE(host.front().shows(L"1 not selected: not in the working set of block \"LAMP\"."));
}

TEST_F(WorksetSelection, AnotherReferenceIsNotPickedWhereItStands) {
    EXPECT_EQ(select({L"-300,0,0", L""}), RTNONE);

    EXPECT_TRUE(host.front().shows(L"1 not selected"));
}

TEST_F(WorksetSelection, TheLastOneIsTaken) {
    EXPECT_EQ(select({L"L", L""}), RTNORM);

    EXPECT_EQ(ids, ZrDbObjectIdArray{last()});
}

TEST_F(WorksetSelection, WithoutAWorkingSetTheLastOneIsAStranger) {
    host.run({L"ERASE", L"ALL", L""});

    EXPECT_EQ(select({L"L", L""}), RTNONE);
}

TEST_F(WorksetSelection, WhatWasSelectedBeforeItBeganIsNotTakenAgain) {
    host.document().previousSelection = {object(0x69), last()};

    EXPECT_EQ(select({L"P", L""}), RTNORM);

    EXPECT_EQ(ids, ZrDbObjectIdArray{last()});
}

TEST_F(WorksetSelection, OfWhatAPersonHasSelectedOnlyTheWorkingSetIsTaken) {
    zredSetImpliedSelection({object(0x69), last(), object(0x60)});

    EXPECT_EQ(select({}), RTNORM);

    EXPECT_EQ(ids, ZrDbObjectIdArray{last()});
    EXPECT_TRUE(host.front().shows(L"1 found"));
    EXPECT_TRUE(host.front().shows(L"2 not selected"));
}

TEST_F(WorksetSelection, IsAskedForWhenAPersonHasSelectedNothingOfIt) {
    zredSetImpliedSelection({object(0x69)});

    EXPECT_EQ(select({L"L", L""}), RTNORM);

    EXPECT_EQ(ids, ZrDbObjectIdArray{last()});
    EXPECT_TRUE(host.front().shows(L"1 not selected"));
}

TEST_F(WorksetSelection, SelectMakesNothingElsePickFirst) {
    host.run({L"SELECT", L"ALL", L""});

    EXPECT_EQ(zredImpliedSelection().size(), 4U);
}

TEST_F(WorksetSelection, RemovingSaysNothingOfStrangers) {
    EXPECT_EQ(select({L"ALL", L"R", L"ALL", L""}), RTNONE);

    EXPECT_TRUE(host.front().shows(L"14 found, 4 removed, 0 total"));
}

TEST_F(WorksetSelection, ErasingAllLeavesTheRestOfTheDrawing) {
    host.run({L"ERASE", L"ALL", L"", L"REFCLOSE", L"D"});

    EXPECT_EQ(host.document().drawing().entities(host.document().database()->modelSpaceId()).size(), 11U);
}

TEST_F(WorksetSelection, AnotherDrawingIsNotConcerned) {
    host.run({L"NEW", L"LINE", L"0,0", L"1,1", L""});

    EXPECT_EQ(select({L"ALL", L""}), RTNORM);
}

TEST_F(WorksetSelection, EndsWithTheEditing) {
    host.run({L"REFCLOSE", L""});

    EXPECT_EQ(select({L"ALL", L""}), RTNORM);
    EXPECT_EQ(ids.size(), 11U);
}

} // namespace
} // namespace quor
