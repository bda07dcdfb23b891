#include "host/sys/utf8.h"

#include <string>

#include <gtest/gtest.h>

namespace {

using quor::fromUtf8;
using quor::toUtf8;

TEST(Utf8, TheFirstAndLastCharacterOfEachLengthSurvive) {
    const std::wstring text{L'\x01',   L'\x7F',   L'\x80',   L'\x7FF',   L'\x800',
                            L'\xD7FF', L'\xE000', L'\xFFFF', L'\x10000', L'\x10FFFF'};
    const std::string bytes = "\x01\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF\xF0\x90\x80\x80"
                              "\xF4\x8F\xBF\xBF";
    EXPECT_EQ(toUtf8(text), bytes);
    EXPECT_EQ(fromUtf8(bytes), text);
    EXPECT_TRUE(quor::isValidUtf8(bytes));
}

TEST(Utf8, AnEmptyTextAndNulCharactersSurvive) {
    EXPECT_EQ(fromUtf8(""), L"");
    EXPECT_EQ(toUtf8(L""), "");
    EXPECT_EQ(fromUtf8(std::string_view("a\0b", 3)), std::wstring(L"a\0b", 3));
}

class InvalidUtf8 : public testing::TestWithParam<std::string> {};

TEST_P(InvalidUtf8, BecomesLoneSurrogatesAndComesBackExactly) {
    const std::wstring text = fromUtf8(GetParam());
    EXPECT_FALSE(quor::isValidUtf8(GetParam()));
    EXPECT_EQ(text.size(), GetParam().size());
    EXPECT_EQ(text[0], quor::escapedByte(static_cast<unsigned char>(GetParam()[0])));
    EXPECT_EQ(toUtf8(text), GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, InvalidUtf8,
                         testing::Values("\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC2", "\xC2\x41", "\xE0\x9F\xBF",
                                         "\xE4\xB8", "\xE4\xB8\x41", "\xED\xA0\x80", "\xED\xBF\xBF", "\xED\xB2\x80",
                                         "\xF0\x8F\xBF\xBF", "\xF0\x9F\x98", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
                                         "\xFE", "\xFF"));

TEST(Utf8, EveryPairOfBytesComesBackExactly) {
    for (int pair = 0; pair < 0x10000; ++pair) {
        const std::string bytes{static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)};
        ASSERT_EQ(toUtf8(fromUtf8(bytes)), bytes) << pair;
    }
}

TEST(Utf8, TextWithoutAUtf8FormIsWrittenAsTheReplacementCharacter) {
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0xDC7F))), "\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0xDD00))), "\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(0x110000))), "\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(std::wstring(1, static_cast<wchar_t>(-1))), "\xEF\xBF\xBD");
}

TEST(Utf8, TheAsciiPrefixEndsAtTheFirstOtherByteWhereverItStands) {
    EXPECT_EQ(quor::asciiPrefix(""), 0U);
    EXPECT_EQ(quor::asciiPrefix("\x80"), 0U);
    EXPECT_EQ(quor::asciiPrefix("1234567\xC3"), 7U);
    EXPECT_EQ(quor::asciiPrefix("12345678\xC3"), 8U);
    EXPECT_EQ(quor::asciiPrefix("1234567890\xC3\x41"), 10U);
    EXPECT_EQ(quor::asciiPrefix("12345678901234567"), 17U);
}

} // namespace
