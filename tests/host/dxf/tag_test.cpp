#include "host/dxf/tag.h"

#include "host/dxf/code_line.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace quor::dxf {
namespace {

Tag asciiTag(int code, std::string_view raw) { return {code, raw, 0, 0, Form::Ascii}; }
Tag binaryTag(int code, std::string_view raw) { return {code, raw, 0, 0, Form::Binary16}; }

// Padded as an image is: four bytes may be read wherever a line begins.
int codeOf(std::string line) {
    const std::size_t length = line.size();
    return readCodeLine((line + "\n\n\n\n").c_str(), length);
}

struct KindCase {
    int code;
    ValueKind kind;
};

class KindOfCode : public testing::TestWithParam<KindCase> {};

TEST_P(KindOfCode, FollowsFromItsRange) { EXPECT_EQ(kindOf(GetParam().code), GetParam().kind); }

INSTANTIATE_TEST_SUITE_P(
    BothEndsOfRanges, KindOfCode,
    testing::Values(KindCase{0, ValueKind::Text}, KindCase{5, ValueKind::Handle}, KindCase{9, ValueKind::Text},
                    KindCase{10, ValueKind::Double}, KindCase{59, ValueKind::Double}, KindCase{60, ValueKind::Int16},
                    KindCase{79, ValueKind::Int16}, KindCase{90, ValueKind::Int32}, KindCase{99, ValueKind::Int32},
                    KindCase{102, ValueKind::Text}, KindCase{105, ValueKind::Handle}, KindCase{140, ValueKind::Double},
                    KindCase{160, ValueKind::Int64}, KindCase{169, ValueKind::Int64}, KindCase{210, ValueKind::Double},
                    KindCase{289, ValueKind::Int16}, KindCase{290, ValueKind::Bool}, KindCase{299, ValueKind::Bool},
                    KindCase{300, ValueKind::Text}, KindCase{310, ValueKind::Bytes}, KindCase{330, ValueKind::Handle},
                    KindCase{369, ValueKind::Handle}, KindCase{370, ValueKind::Int16}, KindCase{390, ValueKind::Handle},
                    KindCase{421, ValueKind::Int32}, KindCase{459, ValueKind::Int32}, KindCase{460, ValueKind::Double},
                    KindCase{481, ValueKind::Handle}, KindCase{999, ValueKind::Comment},
                    KindCase{1004, ValueKind::Bytes}, KindCase{1005, ValueKind::Handle},
                    KindCase{1059, ValueKind::Double}, KindCase{1070, ValueKind::Int16},
                    KindCase{1071, ValueKind::Int32}));

TEST(Tag, CodesOutsideEveryRangeAreUnknownAndCountAsText) {
    EXPECT_FALSE(isKnownCode(-1));
    EXPECT_FALSE(isKnownCode(80));
    EXPECT_FALSE(isKnownCode(482));
    EXPECT_FALSE(isKnownCode(1072));
    EXPECT_EQ(kindOf(80), ValueKind::Text);
}

TEST(Tag, ReadsNumbersWithBlanksAroundThem) {
    EXPECT_EQ(asciiTag(40, "  1.5 \r").asDouble(), 1.5);
    EXPECT_EQ(asciiTag(40, "-.5E+2").asDouble(), -50.0);
    EXPECT_EQ(asciiTag(40, "+3").asDouble(), 3.0);
    EXPECT_EQ(asciiTag(70, "     4").asInt(), 4);
    EXPECT_EQ(asciiTag(290, " 1").asBool(), true);
}

TEST(Tag, RefusesWhatIsNoFiniteNumber) {
    for (const char* text : {"", " ", "nan", "inf", "-infinity", "0x10", "1.5x", "1,5", "1e999", "--1", "+-1", "+"}) {
        EXPECT_FALSE(parseDouble(text)) << text;
    }
}

TEST(Tag, IntegersReachToBothEndsOf64Bits) {
    EXPECT_EQ(parseInt("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(parseInt("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_FALSE(parseInt("9223372036854775808"));
    EXPECT_FALSE(parseInt("-9223372036854775809"));
    EXPECT_FALSE(parseInt("1.0"));
    EXPECT_FALSE(parseInt("-"));
    EXPECT_FALSE(parseInt(""));
}

TEST(Tag, HandlesAreHexOfEitherCaseUpTo16Digits) {
    EXPECT_EQ(parseHandle("2ce"), 0x2CEU);
    EXPECT_EQ(parseHandle(" 2CE\r"), 0x2CEU);
    EXPECT_EQ(parseHandle("FFFFFFFFFFFFFFFF"), ~std::uint64_t{0});
    EXPECT_FALSE(parseHandle("10000000000000000"));
    EXPECT_FALSE(parseHandle("2G"));
    EXPECT_FALSE(parseHandle(""));
}

TEST(Tag, DecodesBinaryValuesLittleEndian) {
    EXPECT_EQ(binaryTag(40, std::string_view("\0\0\0\0\0\0\xF8\x3F", 8)).asDouble(), 1.5);
    EXPECT_EQ(binaryTag(70, "\xFE\xFF").asInt(), -2);
    EXPECT_EQ(binaryTag(90, std::string_view("\x01\0\0\x80", 4)).asInt(), -2147483647);
    EXPECT_EQ(binaryTag(160, std::string_view("\0\0\0\0\x01\0\0\0", 8)).asInt(), std::int64_t{1} << 32);
    EXPECT_EQ(binaryTag(290, "\x01").asBool(), true);
    EXPECT_EQ(binaryTag(5, "1F").asHandle(), 0x1FU);
}

TEST(Tag, BinaryValuesOfTheWrongKindAreNothing) {
    EXPECT_FALSE(binaryTag(1, "12345678").asDouble());
    EXPECT_FALSE(binaryTag(40, "1234").asDouble());
    EXPECT_FALSE(binaryTag(40, "12345678").asInt());
    EXPECT_FALSE(binaryTag(40, std::string_view("\0\0\0\0\0\0\xF0\x7F", 8)).asDouble()); // infinity
}

TEST(CodeLine, ReadsEveryUsualManner) {
    EXPECT_EQ(codeOf("0"), 0);
    EXPECT_EQ(codeOf("  0"), 0);
    EXPECT_EQ(codeOf("  0\r"), 0);
    EXPECT_EQ(codeOf(" 62"), 62);
    EXPECT_EQ(codeOf("62\r"), 62);
    EXPECT_EQ(codeOf("330"), 330);
    EXPECT_EQ(codeOf("1071\r"), 1071);
    EXPECT_EQ(codeOf("  1070"), 1070);
    EXPECT_EQ(codeOf("\t10 "), 10);
    EXPECT_EQ(codeOf("10 "), 10);
    EXPECT_EQ(codeOf("-5"), -5);
    EXPECT_EQ(codeOf("000000008"), 8);
}

TEST(CodeLine, RefusesWhatIsNoGroupCode) {
    for (const char* line :
         {"", "\r", " ", "   ", "    ", "1 0", "A", " !0", "0x1", "1/", ":0", "1.0", "99999", "SECTION", "1\n2"}) {
        EXPECT_EQ(codeOf(line), kBadCode) << line;
    }
}

TEST(CodeLine, AgreesWithTheSlowReaderOnAllShortLines) {
    constexpr std::string_view kAlphabet = " 019/:-\tA\r";
    for (const char a : kAlphabet) {
        for (const char b : kAlphabet) {
            for (const char c : kAlphabet) {
                const std::string line{a, b, c};
                EXPECT_EQ(codeOf(line), parseGroupCode(line).value_or(kBadCode)) << line;
                EXPECT_EQ(codeOf(line.substr(1)), parseGroupCode(line.substr(1)).value_or(kBadCode)) << line;
                EXPECT_EQ(codeOf('1' + line), parseGroupCode('1' + line).value_or(kBadCode)) << line;
            }
        }
    }
}

} // namespace
} // namespace quor::dxf
