#include "tests/host/gs/shapes/shape_testing.h"

namespace quor::gs {
namespace {

// A line of modeler data as drawings store it.
std::string stored(const std::string& line) {
    std::string text;
    for (const char c : line) {
        const char mirrored = c == ' ' ? c : static_cast<char>(159 - c);
        text += mirrored;
        if (mirrored == '^')
            text += ' ';
    }
    return text;
}

std::string solid(const std::vector<std::string>& records, const std::string& type = "3DSOLID") {
    std::string tags = "70\n1\n1\n" + stored("400 0 1 0") + "\n1\n" + stored("8 Modeler A#B 7 1.0") + "\n1\n" +
                       stored("1 9.99e-007 1e-010") + "\n";
    for (const std::string& record : records)
        tags += "1\n" + stored(record) + "\n";
    return entity(type, tags);
}

const std::vector<std::string> kStraight{"body $-1 $-1 $-1 $-1 #",
                                         "edge $-1 $2 $3 $-1 $6 forward #",
                                         "vertex $-1 $1 $4 #",
                                         "vertex $-1 $1 $5 #",
                                         "point $-1 1 2 3 #",
                                         "point $-1 4 5 6 #",
                                         "straight-curve $-1 1 2 3 1 0 0 I I #"};

TEST_F(Shapes, ASolidIsItsEdges) {
    const Shape shape = shapeOf(solid(kStraight));
    expectNear(shape.lines, {{1, 2, 3}, {4, 5, 6}});
    EXPECT_FALSE(shapeOf(solid(kStraight, "REGION")).isEmpty());
    EXPECT_FALSE(shapeOf(solid(kStraight, "BODY")).isEmpty());
}

TEST_F(Shapes, ASolidHasEndsAndMiddlesOfItsStraightEdges) {
    const auto snaps = snapsOf(solid(kStraight));
    expectNear(placesOf(snaps, SnapPoint::Kind::End), {{1, 2, 3}, {4, 5, 6}});
    expectNear(placesOf(snaps, SnapPoint::Kind::Middle), {{2.5, 3.5, 4.5}});
}

TEST_F(Shapes, ASolidStandsWhereItsTransformPutsIt) {
    std::vector<std::string> records = kStraight;
    records.push_back("transform $-1 0 1 0 -1 0 0 0 0 1 10 20 30 2 rotate no_reflect no_shear #");
    expectNear(shapeOf(solid(records)).lines, {{6, 22, 36}, {0, 28, 42}});
}

TEST_F(Shapes, RecordsMaySayTheirNumbersAndHaveMoreWords) {
    const std::vector<std::string> records{"-0 body $-1 -1 $-1 $1 $-1 $-1 #",
                                           "-7 edge $-1 -1 $-1 $2 0 $3 1 $-1 $6 forward @7 unknown #",
                                           "-2 vertex $-1 -1 $-1 $7 $4 #",
                                           "-3 vertex $-1 -1 $-1 $7 $5 #",
                                           "-4 point $-1 -1 $-1 1 2 3 #",
                                           "-5 point $-1 -1 $-1 4 5 6 #",
                                           "-6 straight-curve $-1 -1 $-1 1 2 3 1 0 0 I I #"};
    expectNear(shapeOf(solid(records)).lines, {{1, 2, 3}, {4, 5, 6}});
}

std::vector<std::string> onEllipse(const std::string& end, const std::string& sense) {
    return {"edge $-1 $1 $2 $-1 $5 " + sense + " #",
            "vertex $-1 $0 $3 #",
            "vertex $-1 $0 $4 #",
            "point $-1 2 0 0 #",
            "point $-1 " + end + " #",
            "ellipse-curve $-1 0 0 0 0 0 1 2 0 0 0.5 I I #"};
}

TEST_F(Shapes, ARoundEdgeGoesAlongItsEllipse) {
    const Shape forward = shapeOf(solid(onEllipse("-2 0 0", "forward")));
    EXPECT_EQ(lineCount(forward), 32U);
    expectNear({forward.lines.front(), forward.lines[32], forward.lines.back()}, {{2, 0, 0}, {0, 1, 0}, {-2, 0, 0}});
    const Shape reversed = shapeOf(solid(onEllipse("-2 0 0", "reversed")));
    expectNear({reversed.lines[32]}, {{0, -1, 0}});
    EXPECT_EQ(lineCount(shapeOf(solid(onEllipse("2 0 0", "forward")))), 64U);
}

TEST_F(Shapes, AnEdgeOnASplineGoesAlongItWhereItIsAllOfIt) {
    const auto records = [](const std::string& end) {
        return std::vector<std::string>{"edge $-1 $1 $2 $-1 $5 forward #",
                                        "vertex $-1 $0 $3 #",
                                        "vertex $-1 $0 $4 #",
                                        "point $-1 0 0 0 #",
                                        "point $-1 " + end + " #",
                                        "intcurve-curve $-1 forward { exactcur nubs 3 open 2",
                                        "0 3 1 3",
                                        "0 0 0",
                                        "0 4 0",
                                        "4 4 0",
                                        "4 0 0",
                                        "0 null_surface } I I #"};
    };
    const Shape whole = shapeOf(solid(records("4 0 0")));
    EXPECT_EQ(lineCount(whole), 16U);
    expectNear({whole.lines[16]}, {{2, 3, 0}});
    expectNear(shapeOf(solid(records("9 0 0"))).lines, {{0, 0, 0}, {9, 0, 0}});
}

TEST_F(Shapes, LongLinesGoOnInTagsOfTheirOwn) {
    std::string text = solid(kStraight);
    const std::string whole = "1\n" + stored("point $-1 4 5 6 #") + "\n";
    text.replace(text.find(whole), whole.size(), "1\n" + stored("point $-1 4 5") + "\n3\n" + stored(".5 6 #") + "\n");
    expectNear(shapeOf(text).lines, {{1, 2, 3}, {4, 5.5, 6}});
}

TEST_F(Shapes, ModelerDataThatMakeNoSenseAreNotDrawn) {
    EXPECT_TRUE(shapeOf(entity("3DSOLID", "70\n1\n")).isEmpty());
    EXPECT_TRUE(shapeOf(entity("3DSOLID", "70\n1\n1\nrubbish\n")).isEmpty());
    EXPECT_TRUE(shapeOf(solid({"edge $-1 $0 $0 $-1 $0 forward #"})).isEmpty());
    EXPECT_TRUE(shapeOf(solid({"edge $999999999999999 $ $x # @99999999 x", "# # # vertex"})).isEmpty());
}

} // namespace
} // namespace quor::gs
