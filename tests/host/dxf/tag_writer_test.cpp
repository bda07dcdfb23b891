#include "host/dxf/tag_writer.h"

#include <gtest/gtest.h>
#include <limits>

namespace quor::dxf {
namespace {

constexpr TextStyle kPadded{LineEnd::Lf, true, true};
constexpr TextStyle kPlain{LineEnd::CrLf, false, false};

std::string bytesOf(std::initializer_list<int> values) {
    std::string result;
    for (const int value : values) {
        result += static_cast<char>(value);
    }
    return result;
}

TEST(TagWriter, PaddedTextLooksLikeUsualFiles) {
    TagWriter out(Form::Ascii, kPadded);
    out.text(0, "LIGHT");
    out.int16(70, -2);
    out.int32(90, 5);
    out.int64(160, 8);
    out.boolean(290, true);
    out.handle(1005, 0x2CE);
    EXPECT_EQ(out.str(), "  0\nLIGHT\n 70\n    -2\n 90\n        5\n160\n                 8\n290\n     1\n1005\n2CE\n");
}

TEST(TagWriter, PlainTextHasNoPadding) {
    TagWriter out(Form::Ascii, kPlain);
    out.int16(70, 2);
    out.point(10, 1, 0.5, -0.25);
    EXPECT_EQ(out.str(), "70\r\n2\r\n10\r\n1.0\r\n20\r\n0.5\r\n30\r\n-0.25\r\n");
}

TEST(TagWriter, AValueCannotBreakItsTag) {
    TagWriter out(Form::Ascii, kPadded);
    out.text(1, std::string_view("a\nb\rc\0d", 7));
    EXPECT_EQ(out.str(), "  1\na b c d\n");
}

TEST(TagWriter, HandlesAreUpperCaseHexFromZeroToTheLargest) {
    TagWriter out(Form::Ascii, kPlain);
    out.handle(5, 0);
    out.handle(5, ~std::uint64_t{0});
    EXPECT_EQ(out.str(), "5\r\n0\r\n5\r\nFFFFFFFFFFFFFFFF\r\n");
}

TEST(TagWriter, LongBinaryDataIsCutIntoGroups) {
    TagWriter out(Form::Ascii, kPlain);
    out.bytes(310, std::string(128, '\xAB'));
    std::string hex;
    for (int i = 0; i < 127; ++i) {
        hex += "AB";
    }
    EXPECT_EQ(out.str(), "310\r\n" + hex + "\r\n310\r\nAB\r\n");
}

TEST(TagWriter, BinaryWithTwoByteCodes) {
    TagWriter out(Form::Binary16);
    out.text(0, "A");
    out.int16(70, -2);
    out.int32(90, 258);
    out.int64(160, 1);
    out.boolean(290, true);
    out.real(40, 1.5);
    out.bytes(310, "xyz");
    out.int16(1070, 7);
    EXPECT_EQ(out.str(), bytesOf({0, 0, 'A', 0,    70,   0,    0xFE, 0xFF, 90,   0,   2,   1,    0, 0, 160, 0,
                                  1, 0, 0,   0,    0,    0,    0,    0,    0x22, 1,   1,   40,   0, 0, 0,   0,
                                  0, 0, 0,   0xF8, 0x3F, 0x36, 1,    3,    'x',  'y', 'z', 0x2E, 4, 7, 0}));
}

TEST(TagWriter, BinaryWithOneByteCodesWidensFrom255On) {
    TagWriter out(Form::Binary8);
    out.text(0, "A");
    out.real(210, 0);
    out.text(1000, "B");
    EXPECT_EQ(out.str(), bytesOf({0, 'A', 0, 210, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE8, 3, 'B', 0}));
}

TEST(RealText, IsTheShortestThatReadsBack) {
    EXPECT_EQ(realText(0), "0.0");
    EXPECT_EQ(realText(1), "1.0");
    EXPECT_EQ(realText(-12.5), "-12.5");
    EXPECT_EQ(realText(0.1), "0.1");
    EXPECT_EQ(realText(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(realText(57.29577951308232), "57.29577951308232");
    EXPECT_EQ(realText(123456789012345.0), "123456789012345.0");
    EXPECT_EQ(realText(0.00001), "0.00001");
    EXPECT_EQ(realText(1e20), "1.0E+20");
    EXPECT_EQ(realText(6.123233995736766e-17), "6.123233995736766E-17");
}

TEST(RealText, EveryNumberReadsBackTheSame) {
    for (const double value :
         {0.1 + 0.2, 1e15 / 3, 1e16, 9999999999999998.0, 1.0 / 98304, std::numeric_limits<double>::max(),
          std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min(), -1e-5}) {
        EXPECT_EQ(parseDouble(realText(value)), value);
    }
}

} // namespace
} // namespace quor::dxf
