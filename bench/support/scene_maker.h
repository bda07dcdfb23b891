// Scenes of any size for pictures: lines, faces and lights, without a drawing. The same size gives the same scene.
#pragma once

#include "host/gs/scene_arrays.h"

#include <cstdint>
#include <vector>

namespace quor::bench {

class MadeScene {
public:
    [[nodiscard]] gs::SceneData data() const { return arrays_.data(); }
    // What is added from now on belongs to a new entity of this colour.
    void startEntity(std::uint32_t rgb);
    void addLine(const gs::Coordinates& a, const gs::Coordinates& b);
    void addTriangle(const gs::Coordinates& a, const gs::Coordinates& b, const gs::Coordinates& c);
    // Four corners, one after the other around it, with its sides.
    void addFace(const gs::Coordinates& a, const gs::Coordinates& b, const gs::Coordinates& c,
                 const gs::Coordinates& d);
    void addBox(const gs::Coordinates& low, const gs::Coordinates& high);
    void addLight(gs::LightMark light);
    // To be called at the end: puts neighbours in the order of the entities into chunks.
    void finish();
    void emphasize(std::uint32_t entity, gs::Emphasis emphasis) { arrays_.emphasis[entity] = emphasis; }

private:
    gs::SceneArrays arrays_{.contents = 1}; // a renderer shows one scene only
};

// About so many lines: blocks of short ones and curves in a space of 100 x 100 x 30, at most 16 an entity.
[[nodiscard]] MadeScene makeLines(std::size_t count);
// Boxes of twelve triangles in the same space, with their edges.
[[nodiscard]] MadeScene makeBoxes(std::size_t triangles);
// Lights of every kind over it.
void addLights(MadeScene& scene, std::size_t count);

} // namespace quor::bench
