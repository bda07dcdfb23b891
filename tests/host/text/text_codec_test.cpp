#include "host/dxf/text_codec.h"

#include <string>

#include <gtest/gtest.h>

#include "host/sys/code_page.h"
#include "host/sys/utf8.h"

namespace {

using quor::escapedByte;
using quor::dxf::TextCodec;

TextCodec old(const char* page) { return {"AC1015", page}; }

struct Sample {
    const char* page;
    std::string bytes;
    std::wstring text;
};

class PageSample : public testing::TestWithParam<Sample> {};

TEST_P(PageSample, IsReadAndWrittenBackExactly) {
    const TextCodec codec = old(GetParam().page);
    EXPECT_TRUE(codec.isKnown());
    EXPECT_EQ(codec.decode(GetParam().bytes), GetParam().text);
    EXPECT_EQ(codec.encode(GetParam().text), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    All, PageSample,
    testing::Values(Sample{"ANSI_936",
                           "\xB5\xC6\xB9\xE2"
                           "1",
                           L"灯光1"},
                    Sample{"ansi_936", "\x81\x5C", L"乗"}, Sample{"ANSI_932", "\x95\x5C\x8E\xA6", L"表示"},
                    Sample{"ANSI_932", "\x95\x5CU+0041", L"表U+0041"}, Sample{"ANSI_932", "\xB1\xB2", L"ｱｲ"},
                    Sample{"ANSI_949", "\xC1\xB6\xB8\xED", L"조명"}, Sample{"Ansi_950", "\xBF\x4F\xA5\xFA", L"燈光"},
                    Sample{"ANSI_950", "\xB3\x5C", L"許"}, Sample{"johab", "\xD0\x61", L"하"},
                    Sample{"johab", "a\\b", L"a\\b"}, Sample{"ANSI_1252", "\x80\xE9\xFF", L"€éÿ"},
                    Sample{"ansi_1250", "\x8A\xFD", L"Šý"}, Sample{"ANSI_1251", "\xD1\xE2\xE5\xF2", L"Свет"},
                    Sample{"ANSI_1253", "\xD6\xF9\xF2", L"Φως"}, Sample{"ANSI_874", "\xE1\xCA\xA7", L"แสง"},
                    Sample{"ANSI_1258", "\xFD\xD2", L"ư\x0309"}, Sample{"dos850", "\x82\x9B", L"éø"},
                    Sample{"dos866", "\x91\xA2", L"Св"}, Sample{"iso8859-5", "\xC1\xD2", L"Св"},
                    Sample{"macintosh", "\x8E", L"é"}, Sample{"UNDEFINED", "\xE9", L"é"}, Sample{"", "\xE9", L"é"}));

TEST(TextCodec, EveryRowOfTheTableHasItsConversion) {
    for (const auto& row : quor::codePageNames())
        EXPECT_TRUE(old(std::string(row.drawingName).c_str()).isKnown()) << row.drawingName;
}

class EveryPage : public testing::TestWithParam<const char*> {};

TEST_P(EveryPage, KeepsAllSingleBytesAndTheBytesOfEveryUnreadablePair) {
    const TextCodec codec = old(GetParam());
    for (int pair = 0x8000; pair < 0x10000; ++pair) {
        const char second = static_cast<char>(pair & 0xFF);
        if (second == '\n' || second == '\r')
            continue; // ends the line of a file, so no text holds it
        const std::string bytes{static_cast<char>(pair >> 8), second};
        const std::wstring text = codec.decode(bytes);
        ASSERT_EQ(codec.decode(codec.encode(text)), text) << pair;
        const bool isOneCharacter = text.size() == 1; // some characters have two codes, of which one is written
        const bool isControl = second >= 0 && second < 0x20;
        ASSERT_TRUE(isOneCharacter || isControl || codec.encode(text) == bytes) << pair;
    }
}

INSTANTIATE_TEST_SUITE_P(All, EveryPage,
                         testing::Values("ANSI_874", "ANSI_932", "ANSI_936", "ANSI_949", "ANSI_950", "ANSI_1250",
                                         "ANSI_1251", "ANSI_1252", "ANSI_1253", "ANSI_1254", "ANSI_1255", "ANSI_1256",
                                         "ANSI_1257", "ANSI_1258", "dos437", "dos864", "ASCII", "johab"));

TEST(TextCodec, FromAC1021OnItIsUtf8WhateverTheCodePage) {
    EXPECT_FALSE(TextCodec("AC1018", "ANSI_936").isUtf8());
    EXPECT_TRUE(TextCodec("AC1021", "ANSI_936").isUtf8());
    EXPECT_TRUE(TextCodec("AC1032", "").isUtf8());
    EXPECT_FALSE(TextCodec("AC2.10", "").isUtf8());
    EXPECT_FALSE(TextCodec("", "").isUtf8());
    const TextCodec codec("AC1032", "ANSI_936");
    EXPECT_EQ(codec.name(), "UTF-8");
    EXPECT_EQ(codec.decode("\xE7\x81\xAF\xFF"), std::wstring(L"灯") + escapedByte(0xFF));
    EXPECT_EQ(codec.encode(std::wstring(L"灯😀") + escapedByte(0xFF)), "\xE7\x81\xAF\xF0\x9F\x98\x80\xFF");
}

TEST(TextCodec, AnUnknownCodePageCountsAs1252AndSaysSo) {
    const TextCodec codec = old("ANSI_9999");
    EXPECT_FALSE(codec.isKnown());
    EXPECT_EQ(codec.name(), "ANSI_1252");
    EXPECT_EQ(codec.decode("\xE9"), L"é");
    EXPECT_TRUE(old("").isKnown());
}

TEST(TextCodec, BytesThatAreNoCharactersAreKept) {
    const std::wstring kept = L"a" + std::wstring(1, escapedByte(0x81)) + L"b";
    EXPECT_EQ(old("ANSI_1252")
                  .decode("a\x81"
                          "b"),
              kept);
    EXPECT_EQ(old("ANSI_1252").encode(kept), "a\x81"
                                             "b");
    EXPECT_EQ(old("ASCII").encode(old("ASCII").decode("\x80\xFF")), "\x80\xFF");
    EXPECT_EQ(old("ANSI_936").encode(old("ANSI_936").decode("a\xB5")), "a\xB5");
}

TEST(TextCodec, AKeptHalfOfACharacterDoesNotSwallowWhatFollows) {
    const TextCodec codec = old("ANSI_932");
    const std::wstring half(1, escapedByte(0x81));
    EXPECT_EQ(codec.encode(half + L"\t"), "\x81\t");
    EXPECT_EQ(codec.encode(half + L"\n"), "\x81 ^J");
    EXPECT_EQ(codec.encode(half + L"é"), "\x81 \\U+00E9");
    EXPECT_EQ(codec.encode(half + L" é"), "\x81 \\U+00E9");
}

TEST(TextCodec, UnicodeEscapesAreReadInEveryVersionAndAnyCase) {
    EXPECT_EQ(old("ANSI_1252").decode("\\U+706F\\u+5149x"), L"灯光x");
    EXPECT_EQ(TextCodec("AC1032", "").decode("\\u+00e9\\U+00E9"), L"éé");
    EXPECT_EQ(TextCodec("AC1009", "").decode("\\U+D83D\\U+DE00"), L"😀");
    EXPECT_EQ(old("").decode("\\U+0000"), std::wstring(1, L'\0'));
    EXPECT_EQ(old("").decode("\\U+FFFF"), std::wstring(1, static_cast<wchar_t>(0xFFFF)));
}

class NoEscape : public testing::TestWithParam<const char*> {};

TEST_P(NoEscape, StaysAsItIsBothWays) {
    const std::string bytes = GetParam();
    EXPECT_EQ(old("ANSI_1252").decode(bytes), std::wstring(bytes.begin(), bytes.end()));
    EXPECT_EQ(old("ANSI_1252").encode(old("ANSI_1252").decode(bytes)), bytes);
    EXPECT_EQ(TextCodec("AC1032", "").encode(TextCodec("AC1032", "").decode(bytes)), bytes);
}

INSTANTIATE_TEST_SUITE_P(All, NoEscape,
                         testing::Values("\\", "\\U", "\\U+", "\\U+0", "\\U+00", "\\U+009", "\\U+00G4", "\\U-0094",
                                         "\\U+D83D", "\\U+D83Dx", "\\U+DE00", "\\U+DC80", "\\M+", "\\M+1", "\\M+1955",
                                         "\\M+0955C", "\\M+6955C", "\\M+1FFFF", "\\M+14142", "^", "^^", "^A", "^j",
                                         "x^2", "\\P", "{\\fArial|b0;x}"));

TEST(TextCodec, MultibyteEscapesAreReadByTheirOwnCodePage) {
    const TextCodec codec = old("ANSI_1252");
    EXPECT_EQ(codec.decode("\\M+1955C"), L"表");
    EXPECT_EQ(codec.decode("\\M+2bf4f"), L"燈");
    EXPECT_EQ(codec.decode("\\m+3C1B6"), L"조");
    EXPECT_EQ(codec.decode("\\M+4D061"), L"하");
    EXPECT_EQ(codec.decode("\\M+5B5C6\\M+5B9E2"), L"灯光");
    EXPECT_EQ(codec.encode(L"表"), "\\U+8868");
}

TEST(TextCodec, CharactersOutsideTheCodePageAreWrittenAsEscapes) {
    EXPECT_EQ(old("ANSI_1252").encode(L"Lampe 灯"), "Lampe \\U+706F");
    EXPECT_EQ(old("ANSI_936").encode(L"灯😀"), "\xB5\xC6\\U+D83D\\U+DE00");
    EXPECT_EQ(old("ASCII").encode(L"é"), "\\U+00E9");
    EXPECT_EQ(old("ANSI_1252").encode(L"\x81"), "\\U+0081");
}

TEST(TextCodec, CaretCodesStandForLineEndsTabsAndTheCaretItself) {
    const TextCodec codec = old("ANSI_1252");
    EXPECT_EQ(codec.decode("a^Jb^Mc^Id^ J"), L"a\nb\rc\td^J");
    EXPECT_EQ(codec.encode(L"a\nb\rc\td^J"), "a^Jb^Mc^Id^ J");
    EXPECT_EQ(codec.encode(L"^ "), "^  ");
    EXPECT_EQ(TextCodec("AC1032", "").encode(L"一\n二"), "\xE4\xB8\x80^J\xE4\xBA\x8C");
    EXPECT_EQ(codec.encode(std::wstring(L"\0\x1A", 2)), "\\U+0000\\U+001A");
}

class AnyText : public testing::TestWithParam<std::wstring> {};

TEST_P(AnyText, ReadsBackAsItWasWritten) {
    for (const char* page : {"ANSI_1252", "ANSI_932", "ANSI_936", "ASCII"})
        EXPECT_EQ(old(page).decode(old(page).encode(GetParam())), GetParam()) << page;
    const TextCodec utf8("AC1032", "");
    EXPECT_EQ(utf8.decode(utf8.encode(GetParam())), GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, AnyText,
                         testing::Values(L"\\U+0041", L"\\u+706f灯", L"\\M+1955C", L"\\\\U+0041", L"^J^M^I^ ^^ ^",
                                         L"^\n", L"\\\n", L"\\U+D83D\\U+DE00", L"表\\U+0041表", L"\x7F", L"¥‾＼〜",
                                         L"\xFFFF\x10FFFF"));

TEST(TextCodec, ALongAsciiTextIsTakenAsItIs) {
    const std::string bytes(1000000, 'x');
    EXPECT_EQ(old("ANSI_936").decode(bytes), std::wstring(1000000, L'x'));
    EXPECT_EQ(old("ANSI_936").encode(std::wstring(1000000, L'x')), bytes);
}

} // namespace
