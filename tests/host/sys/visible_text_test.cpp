#include "host/sys/visible_text.h"

#include <gtest/gtest.h>

namespace quor {

namespace {

TEST(VisibleText, LeavesPlainTextAsItIs) { EXPECT_EQ(visibleText(L"天花 lamp~\x00A0ä"), L"天花 lamp~\x00A0ä"); }

TEST(VisibleText, SpellsControlCharactersWithACaret) {
    EXPECT_EQ(visibleText(L"a\x1B[31mb"), L"a^[[31mb");
    EXPECT_EQ(visibleText(L"a\nb\tc\r"), L"a^Jb^Ic^M");
    EXPECT_EQ(visibleText(ZrString(1, L'\0')), L"^@");
    EXPECT_EQ(visibleText(L"\x7F"), L"^?");
}

TEST(VisibleText, SpellsTheUpperControlCharactersByNumber) {
    EXPECT_EQ(visibleText(L"\x0080|\x009B|\x009F"), L"U+0080|U+009B|U+009F");
}

TEST(VisibleText, SpellsMarksOfDirectionAndLineSeparatorsByNumber) {
    EXPECT_EQ(visibleText(L"\x202E|\x2066|\x200F|\x061C|\x2028"), L"U+202E|U+2066|U+200F|U+061C|U+2028");
}

TEST(VisibleText, LeavesTheNeighboursOfThoseCharacters) {
    EXPECT_EQ(visibleText(L" ~\x00A0\x2010\x2027\x202F\x2065\x206A"), L" ~\x00A0\x2010\x2027\x202F\x2065\x206A");
}

} // namespace

} // namespace quor
