// What modules are told of a block that is being edited in place: each drawing has its own.
#include "host/db/ref_edit.h"
#include "host/sys/utf8.h"
#include "sdk/sys/ads.h"
#include "tests/host/db/drawings.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

struct RefEditCommands : ::testing::Test {
    RefEditCommands() {
        host.run({L"OPEN", fromUtf8(QUOR_TEST_DATA "/dxf/own/luminaires.dxf"), L"REFEDIT", L"#60", L""});
    }
    ZrDbObjectId last() { return host.document().drawing().lastEntity(host.document().database()->currentSpaceId()); }

    test::TestSession host{{.language = L"en"}};
};

TEST_F(RefEditCommands, AModuleSeesTheWorkingSet) {
    EXPECT_TRUE(zwutads::isRefEditting());
    EXPECT_TRUE(zwutads::isObjInWorkset(last()));
    EXPECT_FALSE(zwutads::isObjInWorkset(host.document().database()->objectId(ZrDbHandle(0x69))));
    EXPECT_FALSE(zwutads::isObjInWorkset({}));
}

TEST_F(RefEditCommands, WhatIsDrawnMeanwhileIsInTheWorkingSet) {
    host.run({L"LINE", L"0,0", L"1,1", L""});

    EXPECT_TRUE(zwutads::isObjInWorkset(last()));
}

TEST_F(RefEditCommands, AModuleSeesTheEndOfIt) {
    const ZrDbObjectId copy = last();

    host.run({L"REFCLOSE", L""});

    EXPECT_FALSE(zwutads::isRefEditting());
    EXPECT_FALSE(zwutads::isObjInWorkset(copy));
}

TEST_F(RefEditCommands, AnotherDrawingHasNoneOfIt) {
    const ZrDbObjectId copy = last();

    host.run({L"NEW"});

    EXPECT_FALSE(zwutads::isRefEditting());
    EXPECT_FALSE(zwutads::isObjInWorkset(copy));
    host.run({L"DOCUMENTS", L"2"});
    EXPECT_TRUE(zwutads::isRefEditting());
}

TEST_F(RefEditCommands, TwoDrawingsAreEditedAtATime) {
    std::filesystem::copy_file(QUOR_TEST_DATA "/dxf/own/luminaires.dxf", host.folder() / "second.dxf");
    const ZrDbObjectId first = last();

    host.run({L"OPEN", fromUtf8((host.folder() / "second.dxf").native()), L"REFEDIT", L"#68", L""});

    EXPECT_TRUE(zwutads::isRefEditting());
    EXPECT_FALSE(zwutads::isObjInWorkset(first));
    host.run({L"REFCLOSE", L"", L"DOCUMENTS", L"2"});
    EXPECT_TRUE(zwutads::isObjInWorkset(first));
}

TEST_F(RefEditCommands, WithoutADrawingNothingIsEdited) {
    host.run({L"CLOSE", L"N", L"CLOSE"});

    EXPECT_FALSE(zwutads::isRefEditting());
    EXPECT_FALSE(zwutads::isObjInWorkset({}));
}

TEST_F(RefEditCommands, ACommandThatIsRefusedHasFailed) {
    EXPECT_EQ(host.run({L"REFEDIT"}).kind, ed::Verdict::Kind::Failed);
    EXPECT_EQ(host.run({L"SAVE"}).kind, ed::Verdict::Kind::Failed);
    EXPECT_EQ(host.run({L"SAVEAS"}).kind, ed::Verdict::Kind::Failed);
}

TEST_F(RefEditCommands, SelectingNothingHasFailed) {
    host.run({L"REFCLOSE", L""});

    EXPECT_EQ(host.run({L"REFEDIT", L""}).kind, ed::Verdict::Kind::Failed);
    EXPECT_EQ(host.run({L"REFEDIT", L"#FF", L""}).kind, ed::Verdict::Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"No block reference selected; nothing is being edited."));
}

TEST_F(RefEditCommands, AReferenceIsTakenFromAmongOtherObjects) {
    host.run({L"REFCLOSE", L"", L"REFEDIT", L"#69", L"#68", L""});

    EXPECT_EQ(host.document().drawing().refEdit().blockName(), L"PLAIN");
    EXPECT_TRUE(host.front().shows(L"1 object ignored: not a block reference."));
}

TEST_F(RefEditCommands, TwoReferencesAreNotEditedAtOnce) {
    host.run({L"REFCLOSE", L"", L"REFEDIT", L"ALL", L""});

    EXPECT_FALSE(zwutads::isRefEditting());
    EXPECT_TRUE(host.front().shows(L" block references are selected."));
}

TEST_F(RefEditCommands, AReferenceIsPickedWhereItStands) {
    host.run({L"REFCLOSE", L"", L"SELECT", L"-300,0,0", L""});

    EXPECT_EQ(zredImpliedSelection(), ZrDbObjectIdArray{host.document().database()->objectId(ZrDbHandle(0x64))});
}

TEST_F(RefEditCommands, ListenersHearThatTheBlockIsEdited) {
    struct Listener : ZrDbDatabaseReactor {
        void headerSysVarChanged(const ZrDbDatabase&, const wchar_t* name) override { heard = name; }
        ZrString heard;
    } listener;
    host.document().database()->addReactor(&listener);

    host.run({L"REFCLOSE", L""});

    EXPECT_EQ(listener.heard, L"REFEDITNAME");
    host.document().database()->removeReactor(&listener);
}

} // namespace
} // namespace quor
