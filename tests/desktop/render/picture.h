// A small scene, made by hand, and the picture of it: what the tests of the renderer look at.
#pragma once

#include "desktop/render/renderer.h"
#include "host/gs/scene_arrays.h"

#include <vector>

namespace quor::desktop {

// Entities in one chunk each, numbered from 0; a light is an entity as well.
class HandScene {
public:
    std::uint32_t addLine(const gs::Coordinates& a, const gs::Coordinates& b, std::uint32_t rgb = 0xFF0000);
    // Of one entity.
    std::uint32_t addLines(const std::vector<gs::SceneLine>& lines, std::uint32_t rgb = 0xFF0000);
    std::uint32_t addTriangle(const gs::Coordinates& a, const gs::Coordinates& b, const gs::Coordinates& c,
                              std::uint32_t rgb = 0x00FF00);
    // At z, from (low, low) to (high, high).
    std::uint32_t addSquare(float low, float high, float z, std::uint32_t rgb = 0x00FF00);
    std::uint32_t addLight(gs::LightMark light);
    void emphasize(std::uint32_t entity, gs::Emphasis emphasis) { arrays_.emphasis[entity] = emphasis; }
    void hide(std::size_t item) { arrays_.items[item].visible = false; }
    void setOrigin(const ZrGePoint3d& origin) { arrays_.origin = origin; }
    // A number for the contents from now on, as scenes of drawings have one.
    void setContents(std::uint64_t contents) { arrays_.contents = contents; }
    [[nodiscard]] gs::SceneData data() const { return arrays_.data(); }

private:
    std::uint32_t addItem(const std::vector<gs::Coordinates>& points, gs::SceneItem item);
    gs::SceneArrays arrays_;
};

// 100 x 100 pixels unless said otherwise; what is around the pixels is watched.
class Picture {
public:
    explicit Picture(int width = 100, int height = 100);
    void take(const HandScene& scene, const gs::Camera& camera, const RenderOptions& options, unsigned threads = 1);
    // With one that has made other pictures before.
    void take(const HandScene& scene, const gs::Camera& camera, const RenderOptions& options, Renderer& renderer);
    [[nodiscard]] std::uint32_t at(int x, int y) const;
    // Red, green and blue together.
    [[nodiscard]] int brightness(int x, int y) const;
    // How many pixels of the rectangle have the colour.
    [[nodiscard]] int count(std::uint32_t color) const;
    // How many pixels differ from the other picture's, from the column and row to the end of the rectangle.
    [[nodiscard]] int differences(const Picture& other, int x, int y, int width, int height) const;
    [[nodiscard]] int differences(const Picture& other) const { return differences(other, 0, 0, width_, height_); }
    // Nothing was written beside the picture.
    [[nodiscard]] bool isUntouchedAround() const;
    // How much light is seen altogether.
    [[nodiscard]] long sum() const;

private:
    int width_, height_, stride_;
    std::vector<std::uint32_t> pixels_;
};

// From above on the plane z = 0, a unit a pixel: the pixel in column x and row y shows (x + 0.5, 99.5 - y).
[[nodiscard]] gs::Camera cameraFromAbove();
// The same place of the plane through an eye.
[[nodiscard]] gs::Camera perspectiveFromAbove();

// One colour behind everything, so that each pixel can be told: black, ink white.
[[nodiscard]] RenderOptions plainOptions();
[[nodiscard]] RenderOptions shadedOptions(Lighting lighting);

} // namespace quor::desktop
