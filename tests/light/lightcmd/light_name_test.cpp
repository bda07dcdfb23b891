#include "light/lightcmd/light_name.h"

#include <gtest/gtest.h>
#include <string>

namespace quor::light {
namespace {

class InvalidCharacter : public testing::TestWithParam<wchar_t> {};

TEST_P(InvalidCharacter, MakesANameInvalidWhereverItStands) {
    const std::wstring character(1, GetParam());

    EXPECT_TRUE(hasInvalidCharacter(character));
    EXPECT_TRUE(hasInvalidCharacter(character + L"灯"));
    EXPECT_TRUE(hasInvalidCharacter(L"灯" + character + L"1"));
    EXPECT_TRUE(hasInvalidCharacter(L"灯" + character));
}

INSTANTIATE_TEST_SUITE_P(All, InvalidCharacter,
                         testing::Values(L'<', L'>', L'/', L'\\', L'"', L'\'', L':', L';', L'?', L'*', L'|', L',', L'=',
                                         L'`'));

TEST(HasInvalidCharacter, OtherCharactersAreAllowed) {
    EXPECT_FALSE(hasInvalidCharacter(L"灯 1.2-3_(a)[b]{c}!@#$%^&+~，。：；？＜＞＝"));
    EXPECT_FALSE(hasInvalidCharacter(L" 灯"));
    EXPECT_FALSE(hasInvalidCharacter(L""));
}

TEST(HasInvalidCharacter, ThereAreFourteenOfThem) { EXPECT_EQ(invalidNameCharacters.size(), 14U); }

} // namespace
} // namespace quor::light
