#include "host/gs/letters.h"
#include "host/gs/shapes/lettering.h"
#include "host/gs/shapes/stroke_font.h"
#include "host/gs/shapes/text_lines.h"
#include "tests/host/gs/shapes/shape_testing.h"

#include <algorithm>

namespace quor::gs {
namespace {

std::string text(const std::string& content, const std::string& tags) {
    return entity("TEXT", point(10, 0, 0, 0) + "40\n6.0\n1\n" + content + "\n" + tags);
}

std::string paragraph(const std::string& content, const std::string& tags) {
    return entity("MTEXT", point(10, 0, 0, 0) + "40\n6.0\n" + tags + "1\n" + content + "\n");
}

// From the lowest to the highest coordinates.
struct Extent {
    ZrGePoint3d low;
    ZrGePoint3d high;
};

Extent extentOf(const Shape& shape) {
    const auto least = [&](double ZrGePoint3d::*axis) { return std::ranges::min(shape.lines, {}, axis).*axis; };
    const auto most = [&](double ZrGePoint3d::*axis) { return std::ranges::max(shape.lines, {}, axis).*axis; };
    return {{least(&ZrGePoint3d::x), least(&ZrGePoint3d::y), least(&ZrGePoint3d::z)},
            {most(&ZrGePoint3d::x), most(&ZrGePoint3d::y), most(&ZrGePoint3d::z)}};
}

void expectExtent(const Shape& shape, const ZrGePoint3d& low, const ZrGePoint3d& high) {
    ASSERT_FALSE(shape.lines.empty());
    const Extent extent = extentOf(shape);
    expectNear({extent.low, extent.high}, {low, high});
}

// An H is 3 units wide and 6 high where a unit is 1; the next letter begins 4.5 behind it.

TEST_F(Shapes, ATextIsStrokesOnItsBaseLine) {
    const Shape shape = shapeOf(text("H", ""));
    expectNear(shape.lines, {{0, 0, 0}, {0, 6, 0}, {3, 0, 0}, {3, 6, 0}, {0, 3, 0}, {3, 3, 0}});
}

TEST_F(Shapes, LettersFollowEachOther) { expectExtent(shapeOf(text("HH", "")), {0, 0, 0}, {7.5, 6, 0}); }

// A program with fonts draws what the strokes cannot: here a triangle, as wide as a capital is high.
TEST_F(Shapes, ALetterWithoutStrokesIsDrawnAsItsOutline) {
    const LetterOutline triangle{{{{0, 0}, {1, 0}, {0.5, 1}, {0, 0}}}, 1.5};
    setLetterSource([&](char32_t character) { return character == U'\u706F' ? &triangle : nullptr; });
    const Shape shape = shapeOf(text("\\U+706FH", ""));
    setLetterSource({});
    expectNear({shape.lines.begin(), shape.lines.begin() + 6},
               {{0, 0, 0}, {6, 0, 0}, {6, 0, 0}, {3, 6, 0}, {3, 6, 0}, {0, 0, 0}});
    expectNear({shape.lines[6]}, {{9, 0, 0}});
}

TEST_F(Shapes, ALetterThatNobodyKnowsIsABox) { expectExtent(shapeOf(text("\\U+706F", "")), {0, 0, 0}, {4.5, 6, 0}); }

TEST_F(Shapes, ATextIsTurnedAndStretched) {
    expectExtent(shapeOf(text("H", "50\n90.0\n")), {-6, 0, 0}, {0, 3, 0});
    expectExtent(shapeOf(text("H", "41\n2.0\n")), {0, 0, 0}, {6, 6, 0});
    expectExtent(shapeOf(text("H", "51\n45.0\n")), {0, 0, 0}, {9, 6, 0});
}

TEST_F(Shapes, ATextCanBeHeldElsewhere) {
    const std::string hold = point(11, 100, 50, 0);
    expectExtent(shapeOf(text("HH", hold + "72\n2\n")), {91, 50, 0}, {98.5, 56, 0});
    expectExtent(shapeOf(text("HH", hold + "72\n1\n73\n3\n")), {95.5, 44, 0}, {103, 50, 0});
    expectExtent(shapeOf(text("HH", hold + "72\n4\n")), {95.5, 47, 0}, {103, 53, 0});
}

TEST_F(Shapes, ATextCanFitBetweenTwoPoints) {
    expectExtent(shapeOf(text("HH", point(11, 0, 18, 0) + "72\n5\n")), {-6, 0, 0}, {0, 15, 0});
    expectExtent(shapeOf(text("HH", point(11, 18, 0, 0) + "72\n3\n")), {0, 0, 0}, {15, 12, 0});
}

TEST_F(Shapes, ATextStandsInThePlaneOfItsNormal) {
    expectExtent(shapeOf(text("H", point(210, 0, 0, -1))), {-3, 0, 0}, {0, 6, 0});
}

TEST_F(Shapes, AnEmptyOrBrokenTextIsNotDrawn) {
    EXPECT_TRUE(shapeOf(text(" ", "")).isEmpty());
    EXPECT_TRUE(shapeOf(text("H", "50\nx\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("TEXT", point(10, 0, 0, 0) + "40\n6.0\n")).isEmpty());
    EXPECT_TRUE(shapeOf(text("", point(11, 18, 0, 0) + "72\n3\n")).isEmpty());
}

TEST_F(Shapes, AParagraphHangsFromItsTopLeft) {
    expectExtent(shapeOf(paragraph("H", "")), {0, -6, 0}, {3, 0, 0});
    expectExtent(shapeOf(paragraph("H\\PH", "")), {0, -16, 0}, {3, 0, 0});
}

TEST_F(Shapes, AParagraphHasNinePlacesToBeHeldAt) {
    expectExtent(shapeOf(paragraph("HH\\PHH", "71\n5\n")), {-4.5, -8, 0}, {3, 8, 0});
    expectExtent(shapeOf(paragraph("HH\\PHH", "71\n9\n")), {-9, 0, 0}, {-1.5, 16, 0});
    expectExtent(shapeOf(paragraph("H", "71\n2000\n")), {-4.5, 0, 0}, {-1.5, 6, 0});
}

TEST_F(Shapes, AParagraphIsBrokenAtBlanks) {
    expectExtent(shapeOf(paragraph("HH HH", "41\n20.0\n")), {0, -16, 0}, {7.5, 0, 0});
    expectExtent(shapeOf(paragraph("HH HH", "41\n21.0\n")), {0, -6, 0}, {19.5, 0, 0});
    expectExtent(shapeOf(paragraph("HHHH", "41\n1.0\n")), {0, -6, 0}, {16.5, 0, 0});
}

TEST_F(Shapes, AParagraphGoesWhereItsDirectionPoints) {
    expectExtent(shapeOf(paragraph("H", point(11, 0, 1, 0))), {0, 0, 0}, {6, 3, 0});
    expectExtent(shapeOf(paragraph("H", "50\n1.5707963267948966\n")), {0, 0, 0}, {6, 3, 0});
}

TEST_F(Shapes, TheEmbeddedObjectOfAParagraphDoesNotCount) {
    const Shape shape = shapeOf(paragraph("H", "") + "101\nEmbedded Object\n70\n1\n" + point(11, 0, 1, 0) + "3\nHH\n");
    expectExtent(shape, {0, -6, 0}, {3, 0, 0});
}

std::string attribute(const std::string& tags) {
    return entity("ATTRIB", point(10, 0, 0, 0) + "40\n6.0\n1\nH\n2\nTAG\n" + tags, "A");
}

std::string withAttributes(const std::string& attributes) {
    return insert("B", "66\n1\n" + point(10, 50, 0, 0)) + attributes + entity("SEQEND", "");
}

TEST_F(Shapes, AReferenceShowsItsAttributesWhereTheyStand) {
    const std::string held = attribute("70\n0\n72\n0\n74\n3\n" + point(11, 10, 10, 0));
    expectExtent(shapeOf(withAttributes(held), block("B", "")), {10, 4, 0}, {13, 10, 0});
    EXPECT_EQ(shapeAt().parts.at(0).layer, layer(L"A"));
}

TEST_F(Shapes, HiddenAttributesOfAReferenceAreNotShown) {
    EXPECT_TRUE(shapeOf(withAttributes(attribute("70\n1\n")), block("B", "")).isEmpty());
    EXPECT_TRUE(shapeOf(withAttributes(attribute("60\n1\n70\n0\n")), block("B", "")).isEmpty());
}

TEST_F(Shapes, ATextIsPickedWhereItIsInserted) {
    expectNear(placesOf(snapsOf(text("HHH", "")), SnapPoint::Kind::End), {{0, 0, 0}});
    expectNear(placesOf(snapsOf(paragraph("HHH", "")), SnapPoint::Kind::End), {{0, 0, 0}});
}

TEST(PlainText, HasTheSignsThatCodesStandFor) {
    EXPECT_EQ(plainText(L"45%%d %%p1 %%c5"), L"45\u00B0 \u00B11 \u00D85");
    EXPECT_EQ(plainText(L"%%uline%%u %%oover%%o"), L"line over");
    EXPECT_EQ(plainText(L"100%% of %%065%%%"), L"100%% of A%");
    EXPECT_EQ(plainText(L"%"), L"%");
    EXPECT_EQ(plainText(L"%%"), L"%%");
}

TEST(PlainLines, AreWithoutTheirFormat) {
    using Lines = std::vector<ZrString>;
    EXPECT_EQ(plainLines(L"{\\fArial|b0|i0;One} \\H2.5x;two\\Pthree"), (Lines{L"One two", L"three"}));
    EXPECT_EQ(plainLines(L"\\A1;\\C7;\\Lunder\\l \\S1#2; \\\\\\{\\}"), (Lines{L"under 1/2 \\{}"}));
    EXPECT_EQ(plainLines(L"a\\~b%%d"), (Lines{L"a b\u00B0"}));
    EXPECT_EQ(plainLines(L""), (Lines{L""}));
    EXPECT_EQ(plainLines(L"x\\"), (Lines{L"x\\"}));
    EXPECT_EQ(plainLines(L"x\\f"), (Lines{L"x"}));
    EXPECT_EQ(plainLines(L"x\\S"), (Lines{L"x"}));
}

TEST(StrokeFont, HasStrokesForEveryLetterOfAscii) {
    for (char32_t c = U'!'; c <= U'~'; ++c) {
        const Strokes strokes = strokesOf(c);
        EXPECT_GE(strokes.size(), 4U) << static_cast<int>(c);
        EXPECT_GE(advanceOf(strokes), 2) << static_cast<int>(c);
        EXPECT_LE(advanceOf(strokes), 6) << static_cast<int>(c);
    }
}

// Digits in twos, two or more of these to a stroke.
TEST(StrokeFont, HasWholeStrokesOnly) {
    for (char32_t c = U'!'; c <= U'~'; ++c) {
        std::string strokes(strokesOf(c));
        for (std::size_t at = 0; at < strokes.size();) {
            const std::size_t end = std::min(strokes.find(' ', at), strokes.size());
            EXPECT_EQ((end - at) % 2, 0U) << static_cast<int>(c);
            EXPECT_GE(end - at, 4U) << static_cast<int>(c);
            at = end + 1;
        }
    }
}

TEST(StrokeFont, ShowsABoxForOtherCharacters) {
    EXPECT_GT(advanceOf(strokesOf(U'灯')), advanceOf(strokesOf(U'é')));
    EXPECT_TRUE(strokesOf(U' ').empty());
    EXPECT_EQ(widthOf(L"H H"), 12);
}

} // namespace
} // namespace quor::gs
