#include "light/lightcmd/light_name.h"

#include <gtest/gtest.h>

namespace quor::light {
namespace {

TEST(DefaultLightName, TheNumberIsWrittenInDecimalBehindTheWord) {
    EXPECT_EQ(defaultLightName(L"点光源", 7), L"点光源7");
    EXPECT_EQ(defaultLightName(L"点光源", -32768), L"点光源-32768");
    EXPECT_EQ(defaultLightName(L"", 0), L"0");
}

TEST(DefaultLightName, TheNumbersRunOverIntoTheNegativeOnes) {
    EXPECT_EQ(followingNumber(0), 1);
    EXPECT_EQ(followingNumber(32766), 32767);
    EXPECT_EQ(followingNumber(32767), -32768);
    EXPECT_EQ(followingNumber(-1), 0);
}

} // namespace
} // namespace quor::light
