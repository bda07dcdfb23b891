#include "host/sys/trim.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

TEST(Trimmed, TakesBlanksTabsAndLineEndsFromBothEnds) { EXPECT_EQ(trimmed(L" \t\r\na b\n\r\t "), L"a b"); }

TEST(Trimmed, LeavesATextWithoutThem) { EXPECT_EQ(trimmed(L"a"), L"a"); }

TEST(Trimmed, LeavesNothingOfBlanksAlone) {
    EXPECT_EQ(trimmed(L" \t"), L"");
    EXPECT_EQ(trimmed(L""), L"");
}

TEST(Trimmed, LeavesOtherSpaces) {
    EXPECT_EQ(trimmed(L"\x3000"
                      L"a\xFEFF"),
              L"\x3000"
              L"a\xFEFF");
}

} // namespace
} // namespace quor
