#include "tests/host/props/selected.h"

#include <gmock/gmock.h>

namespace quor::props {
namespace {

using testing::HasSubstr;

class LightNames : public Selected {
protected:
    LightNames() { select({lamp}); }
    Refusal rename(const ZrString& name) { return set("light.name", name); }

    ZrDbObjectId lamp = addLight(L"Lamp");
    ZrDbObjectId other = addLight(L"Other");
};

TEST_F(LightNames, AreTakenWithoutTheBlanksAround) {
    EXPECT_EQ(rename(L"  Desk lamp "), std::nullopt);
    EXPECT_EQ(read(lamp)->name(), L"Desk lamp");
    EXPECT_EQ(text("light.name"), L"Desk lamp");
}

TEST_F(LightNames, HaveUpTo255Characters) {
    EXPECT_EQ(rename(ZrString(255, L'x')), std::nullopt);
    EXPECT_THAT(rename(ZrString(256, L'y')).value_or(L""), HasSubstr(L"256 characters"));
    EXPECT_EQ(read(lamp)->name(), ZrString(255, L'x'));
}

TEST_F(LightNames, CannotBeEmpty) {
    EXPECT_THAT(rename(L"  ").value_or(L""), HasSubstr(L"1 to 255"));
    EXPECT_EQ(read(lamp)->name(), L"Lamp");
}

class InvalidCharacter : public LightNames, public testing::WithParamInterface<wchar_t> {};

TEST_P(InvalidCharacter, IsRefused) {
    const ZrString name = ZrString(L"a") + GetParam() + L"b";
    EXPECT_THAT(rename(name).value_or(L""), HasSubstr(L"<>/\\\"':;?*|,=`"));
    EXPECT_EQ(read(lamp)->name(), L"Lamp");
}

INSTANTIATE_TEST_SUITE_P(Fourteen, InvalidCharacter,
                         testing::Values(L'<', L'>', L'/', L'\\', L'"', L'\'', L':', L';', L'?', L'*', L'|', L',', L'=',
                                         L'`', L'\a'));

TEST_F(LightNames, AreUniqueWithoutRegardToCase) {
    EXPECT_THAT(rename(L"oTHER").value_or(L""), HasSubstr(L"already a light named \"oTHER\""));
    EXPECT_EQ(read(lamp)->name(), L"Lamp");
}

TEST_F(LightNames, MayChangeTheirOwnCase) {
    EXPECT_EQ(rename(L"LAMP"), std::nullopt);
    EXPECT_EQ(read(lamp)->name(), L"LAMP");
}

TEST_F(LightNames, OfErasedLightsAreFree) {
    write(other)->erase();
    EXPECT_EQ(rename(L"Other"), std::nullopt);
}

TEST_F(LightNames, AreNotSetForSeveralLights) {
    select({lamp, other});

    EXPECT_EQ(row("light.name").editor, Editor::ReadOnly);
    EXPECT_TRUE(rename(L"Both").has_value());
    EXPECT_EQ(read(other)->name(), L"Other");
}

TEST_F(LightNames, AreToldToThoseWhoListen) {
    struct Listener final : ZrDbDatabaseReactor {
        void objectModified(const ZrDbDatabase&, const ZrDbObject& object) override { told = object.objectId(); }
        ZrDbObjectId told;
    } listener;
    host.document().database()->addReactor(&listener);

    EXPECT_EQ(rename(L"Desk"), std::nullopt);

    EXPECT_EQ(listener.told, lamp);
    host.document().database()->removeReactor(&listener);
}

TEST_F(LightNames, ThatChangeAreSeenInTheListOfLights) {
    ASSERT_TRUE(host.loadLight(QUOR_BUILD_DIR));
    host.run({L"LIGHTLIST"});
    ASSERT_TRUE(host.front().shows(L"Lamp"));
    select({lamp});
    EXPECT_EQ(rename(L"Desk"), std::nullopt);
    host.front().clearScreen();

    host.run({L"LIGHTLIST"});

    EXPECT_TRUE(host.front().shows(L"Desk"));
    EXPECT_FALSE(host.front().shows(L"Lamp"));
}

} // namespace
} // namespace quor::props
