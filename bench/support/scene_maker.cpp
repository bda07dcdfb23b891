#include "bench/support/scene_maker.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace quor::bench {
namespace {

constexpr float kSize = 100;
constexpr float kHeight = 30;

float upTo(std::mt19937& random, float most) {
    return most * static_cast<float>(random() >> 8) / static_cast<float>(1U << 24);
}

constexpr std::uint32_t kColors[] = {0xFFFFFF, 0xFF0000, 0x00FF00, 0xFFFF00, 0x00FFFF, 0x8080FF, 0xC0C0C0, 0x2040FF};

} // namespace

void MadeScene::startEntity(std::uint32_t rgb) {
    arrays_.items.push_back({.entity = static_cast<std::uint32_t>(arrays_.emphasis.size()),
                             .rgb = rgb,
                             .firstLine = static_cast<std::uint32_t>(arrays_.lines.size()),
                             .firstTriangle = static_cast<std::uint32_t>(arrays_.triangles.size())});
    arrays_.emphasis.push_back(gs::Emphasis::None);
}

void MadeScene::addLine(const gs::Coordinates& a, const gs::Coordinates& b) {
    arrays_.lines.push_back({a, b});
    ++arrays_.items.back().lineCount;
}

void MadeScene::addTriangle(const gs::Coordinates& a, const gs::Coordinates& b, const gs::Coordinates& c) {
    arrays_.triangles.push_back({a, b, c});
    ++arrays_.items.back().triangleCount;
}

void MadeScene::addFace(const gs::Coordinates& a, const gs::Coordinates& b, const gs::Coordinates& c,
                        const gs::Coordinates& d) {
    addTriangle(a, b, c);
    addTriangle(a, c, d);
    addLine(a, b);
    addLine(b, c);
    addLine(c, d);
    addLine(d, a);
}

void MadeScene::addBox(const gs::Coordinates& low, const gs::Coordinates& high) {
    const auto corner = [&](int x, int y, int z) {
        return gs::Coordinates{x == 0 ? low[0] : high[0], y == 0 ? low[1] : high[1], z == 0 ? low[2] : high[2]};
    };
    for (const int z : {0, 1})
        addFace(corner(0, 0, z), corner(1, 0, z), corner(1, 1, z), corner(0, 1, z));
    for (const int y : {0, 1})
        addFace(corner(0, y, 0), corner(1, y, 0), corner(1, y, 1), corner(0, y, 1));
    for (const int x : {0, 1})
        addFace(corner(x, 0, 0), corner(x, 1, 0), corner(x, 1, 1), corner(x, 0, 1));
}

void MadeScene::addLight(gs::LightMark light) {
    light.entity = static_cast<std::uint32_t>(arrays_.emphasis.size());
    arrays_.emphasis.push_back(gs::Emphasis::None);
    arrays_.lights.push_back(light);
}

void MadeScene::finish() {
    constexpr std::size_t itemsOfChunk = 256;
    const auto include = [](gs::SceneChunk& chunk, const gs::Coordinates& p) {
        for (std::size_t i = 0; i < p.size(); ++i) {
            chunk.low[i] = std::min(chunk.low[i], p[i]);
            chunk.high[i] = std::max(chunk.high[i], p[i]);
        }
    };
    arrays_.chunks.clear();
    for (std::size_t first = 0; first < arrays_.items.size(); first += itemsOfChunk) {
        gs::SceneChunk chunk{{1e30F, 1e30F, 1e30F}, {-1e30F, -1e30F, -1e30F}, static_cast<std::uint32_t>(first), 0};
        chunk.itemCount = static_cast<std::uint32_t>(std::min(itemsOfChunk, arrays_.items.size() - first));
        for (const gs::SceneItem& item : std::span(arrays_.items).subspan(first, chunk.itemCount)) {
            for (const gs::SceneLine& line : std::span(arrays_.lines).subspan(item.firstLine, item.lineCount)) {
                include(chunk, line.a);
                include(chunk, line.b);
            }
            for (const gs::SceneTriangle& t :
                 std::span(arrays_.triangles).subspan(item.firstTriangle, item.triangleCount)) {
                include(chunk, t.a);
                include(chunk, t.b);
                include(chunk, t.c);
            }
        }
        arrays_.chunks.push_back(chunk);
    }
}

MadeScene makeLines(std::size_t count) {
    MadeScene scene;
    std::mt19937 random(20);
    const auto perSide = static_cast<float>(std::sqrt(static_cast<double>(std::max<std::size_t>(count, 16)) / 16));
    const float cell = kSize / perSide;
    std::size_t made = 0;
    for (int number = 0; made < count; ++number) {
        const float column = std::floor(std::fmod(static_cast<float>(number), perSide));
        const float line = std::floor(static_cast<float>(number) / perSide);
        const gs::Coordinates middle{(column + upTo(random, 1)) * cell, (line + upTo(random, 1)) * cell,
                                     upTo(random, kHeight)};
        scene.startEntity(kColors[static_cast<std::size_t>(number) % std::size(kColors)]);
        constexpr int sides = 16;
        const float radius = cell * (0.2F + upTo(random, 0.6F));
        const auto at = [&](int i) {
            const float angle = static_cast<float>(i) * 2 * std::numbers::pi_v<float> / sides;
            return gs::Coordinates{middle[0] + radius * std::cos(angle), middle[1] + radius * std::sin(angle),
                                   middle[2]};
        };
        for (int i = 0; i < sides && made < count; ++i, ++made)
            scene.addLine(at(i), number % 3 == 0 ? middle : at(i + 1));
    }
    scene.finish();
    return scene;
}

MadeScene makeBoxes(std::size_t triangles) {
    MadeScene scene;
    std::mt19937 random(21);
    for (std::size_t made = 0; made < triangles; made += 12) {
        const gs::Coordinates low{upTo(random, kSize), upTo(random, kSize), upTo(random, kHeight)};
        scene.startEntity(kColors[made / 12 % std::size(kColors)]);
        scene.addBox(
            low, {low[0] + 0.5F + upTo(random, 3), low[1] + 0.5F + upTo(random, 3), low[2] + 0.5F + upTo(random, 3)});
    }
    scene.finish();
    return scene;
}

void addLights(MadeScene& scene, std::size_t count) {
    std::mt19937 random(22);
    for (std::size_t i = 0; i < count; ++i) {
        gs::LightMark light;
        light.kind = static_cast<gs::GlyphKind>(i % 4);
        light.position = {upTo(random, kSize), upTo(random, kSize), upTo(random, kHeight)};
        light.direction = ZrGeVector3d(upTo(random, 2) - 1, upTo(random, 2) - 1, -1).normal();
        light.hotspot = 0.6;
        light.falloff = 0.9;
        light.candela = 1500;
        light.isOn = i % 5 != 0;
        scene.addLight(light);
    }
}

} // namespace quor::bench
