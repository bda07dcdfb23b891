// A scene that is made by hand: what SceneData shows, kept in arrays.
#pragma once

#include "host/gs/scene.h"

#include <vector>

namespace quor::gs {

struct SceneArrays {
    ZrGePoint3d origin{};
    std::vector<SceneChunk> chunks{};
    std::vector<SceneItem> items{};
    std::vector<SceneLine> lines{};
    std::vector<SceneTriangle> triangles{};
    std::vector<LightMark> lights{};
    std::vector<Emphasis> emphasis{};
    std::uint64_t contents = 0;

    // Holds until an array changes.
    [[nodiscard]] SceneData data() const {
        return {.origin = origin,
                .chunks = chunks,
                .items = items,
                .lines = lines,
                .triangles = triangles,
                .lights = lights,
                .entities = {},
                .emphasis = emphasis,
                .contents = contents};
    }
};

} // namespace quor::gs
