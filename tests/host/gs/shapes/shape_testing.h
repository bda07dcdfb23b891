// Small drawings, and what their entities look like.
#pragma once

#include "host/gs/shape.h"
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace quor::gs {

// Tags of an entity between its type and its own ones.
inline std::string entity(const std::string& type, const std::string& tags, const std::string& layer = "0") {
    return "0\n" + type + "\n8\n" + layer + "\n" + tags;
}

inline std::string point(int code, double x, double y, double z) {
    return std::to_string(code) + "\n" + std::to_string(x) + "\n" + std::to_string(code + 10) + "\n" +
           std::to_string(y) + "\n" + std::to_string(code + 20) + "\n" + std::to_string(z) + "\n";
}

inline std::string line(double x1, double y1, double z1, double x2, double y2, double z2, const std::string& tags = {},
                        const std::string& layer = "0") {
    return entity("LINE", tags + point(10, x1, y1, z1) + point(11, x2, y2, z2), layer);
}

inline std::string block(const std::string& name, const std::string& entities, const std::string& tags = {}) {
    return "0\nBLOCK\n8\n0\n2\n" + name + "\n70\n0\n" + (tags.empty() ? point(10, 0, 0, 0) : tags) + entities +
           "0\nENDBLK\n";
}

inline std::string insert(const std::string& name, const std::string& tags, const std::string& layer = "0") {
    return entity("INSERT", "2\n" + name + "\n" + tags, layer);
}

// An AC1009 drawing with the layers 0, A (colour 1) and B (colour 5).
inline std::string drawingText(const std::string& entities, const std::string& blocks = {}) {
    const auto layer = [](const std::string& name, const std::string& color) {
        return "0\nLAYER\n2\n" + name + "\n70\n0\n62\n" + color + "\n6\nCONTINUOUS\n";
    };
    return "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n3\n" + layer("0", "7") + layer("A", "1") + layer("B", "5") +
           "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n" + blocks + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" +
           entities + "0\nENDSEC\n0\nEOF\n";
}

struct Shapes : testing::Test {
    void open(const std::string& entities, const std::string& blocks = {}) {
        database = db::drawings::parsed(drawingText(entities, blocks));
    }
    db::ObjectEntry& entityAt(std::size_t index) { return *database->structure().modelSpace().entities.at(index); }
    Shape shapeAt(std::size_t index = 0) {
        Shape shape;
        appendShape(shape, *database, entityAt(index));
        return shape;
    }
    // The shape of the first entity of a drawing with these.
    Shape shapeOf(const std::string& entities, const std::string& blocks = {}) {
        open(entities, blocks);
        return shapeAt();
    }
    std::vector<SnapPoint> snapsOf(const std::string& entities, const std::string& blocks = {}) {
        open(entities, blocks);
        return snapPoints(*database, entityAt(0));
    }
    const db::ObjectEntry* layer(const ZrString& name) { return database->layers().find(name); }

    std::unique_ptr<db::Database> database;
};

using Points = std::vector<ZrGePoint3d>;

inline void expectNear(const Points& actual, const Points& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_LT(actual[i].distanceTo(expected[i]), 1e-6)
            << "point " << i << ": " << actual[i].x << ", " << actual[i].y << ", " << actual[i].z;
}

// The places of one kind to snap to.
inline Points placesOf(const std::vector<SnapPoint>& snaps, SnapPoint::Kind kind) {
    Points places;
    for (const SnapPoint& snap : snaps)
        if (snap.kind == kind)
            places.push_back(snap.at);
    return places;
}

inline std::size_t lineCount(const Shape& shape) { return shape.lines.size() / 2; }
inline std::size_t triangleCount(const Shape& shape) { return shape.triangles.size() / 3; }

} // namespace quor::gs
