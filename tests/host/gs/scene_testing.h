// What the tests of scenes share: what a scene says of its drawing, in words that can be compared.
#pragma once

#include "host/gs/scene.h"
#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

#include <map>
#include <tuple>
#include <vector>

namespace quor::gs {

using Triple = std::array<double, 3>;

// What one entity is drawn with, in the world, to a thousandth.
struct Seen {
    std::vector<std::pair<Triple, Triple>> lines;
    std::vector<std::array<Triple, 3>> triangles;
    std::vector<std::pair<std::uint32_t, bool>> looks; // colour and visibility of its items
    bool operator==(const Seen&) const = default;
};

inline Triple worldOf(const SceneData& data, const Coordinates& c) {
    const auto rounded = [](double x) { return std::round(x * 1000) / 1000 + 0.0; };
    return {rounded(data.origin.x + c[0]), rounded(data.origin.y + c[1]), rounded(data.origin.z + c[2])};
}

// By the handle of the entity. Items without anything are left out.
inline std::map<std::uint64_t, Seen> seenIn(const SceneData& data) {
    std::map<std::uint64_t, Seen> seen;
    for (const SceneItem& item : data.items) {
        if (item.lineCount + item.triangleCount == 0)
            continue;
        Seen& entity = seen[data.entities[item.entity].handle().value()];
        entity.looks.emplace_back(item.rgb, item.visible);
        for (const SceneLine& line : data.lines.subspan(item.firstLine, item.lineCount))
            entity.lines.emplace_back(worldOf(data, line.a), worldOf(data, line.b));
        for (const SceneTriangle& each : data.triangles.subspan(item.firstTriangle, item.triangleCount))
            entity.triangles.push_back({worldOf(data, each.a), worldOf(data, each.b), worldOf(data, each.c)});
    }
    return seen;
}

// Handle, colour, intensity, place, whether it is on and its glyph is shown.
using SeenLight = std::tuple<std::uint64_t, std::uint32_t, double, double, bool, bool>;

inline std::vector<SeenLight> lightsIn(const SceneData& data) {
    std::vector<SeenLight> seen;
    for (const LightMark& mark : data.lights)
        seen.emplace_back(mark.id.handle().value(), mark.rgb, mark.candela, mark.position.x, mark.isOn,
                          mark.isGlyphShown);
    return seen;
}

// Whether every item stands in exactly one chunk, whose box holds it.
inline bool chunksHoldTheirItems(const SceneData& data) {
    std::size_t next = 0;
    bool holds = true;
    const auto isIn = [](const SceneChunk& chunk, const Coordinates& c) {
        return std::equal(c.begin(), c.end(), chunk.low.begin(), std::greater_equal<>()) &&
               std::equal(c.begin(), c.end(), chunk.high.begin(), std::less_equal<>());
    };
    for (const SceneChunk& chunk : data.chunks) {
        holds = holds && chunk.firstItem == next;
        next += chunk.itemCount;
        for (const SceneItem& item : data.items.subspan(chunk.firstItem, chunk.itemCount))
            for (const SceneLine& line : data.lines.subspan(item.firstLine, item.lineCount))
                holds = holds && isIn(chunk, line.a) && isIn(chunk, line.b);
    }
    return holds && next == data.items.size();
}

struct SceneTest : testing::Test {
    ~SceneTest() override { scene.reset(); }

    // The drawing from now on, with a scene of it.
    void use(std::unique_ptr<db::Database> drawing) {
        scene.reset();
        database = std::move(drawing);
        scene.emplace(database->interface());
        scene->update();
    }
    ZrDbObjectId addLine(const ZrGePoint3d& from, const ZrGePoint3d& to) {
        return db::drawings::append(database->interface().currentSpaceId(), std::make_unique<ZrDbLine>(from, to));
    }
    SceneData updated() {
        scene->update();
        return scene->data();
    }
    std::map<std::uint64_t, Seen> seen() { return seenIn(updated()); }
    Seen seenOf(ZrDbObjectId id) { return seen()[id.handle().value()]; }
    // Says the same as a scene that is made anew.
    void expectFresh() {
        Scene fresh(database->interface());
        fresh.update();
        const SceneData data = updated();
        EXPECT_EQ(seenIn(data), seenIn(fresh.data()));
        EXPECT_EQ(lightsIn(data), lightsIn(fresh.data()));
        EXPECT_TRUE(chunksHoldTheirItems(data));
    }

    std::unique_ptr<db::Database> database = db::Database::makeNew();
    std::optional<Scene> scene{std::in_place, database->interface()};
};

} // namespace quor::gs
