// Draws a scene into pixels by itself, without a graphics card: the same picture on every machine, fast enough to turn
// 200,000 lines thirty times a second.
#pragma once

#include "host/gs/scene.h"
#include "host/gs/view.h"

#include <cstdint>
#include <memory>

namespace quor::desktop {

// Pixels as 0xFFRRGGBB, a row after the other; not owned.
struct PixelBuffer {
    std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0; // pixels from one row to the next
};

struct PictureColors {
    std::uint32_t backgroundTop = 0xFF2B3038;
    std::uint32_t backgroundBottom = 0xFF16191D;
    std::uint32_t ink = 0xFFFFFFFF; // of what is white or black in the drawing: the one that can be seen
    std::uint32_t hovered = 0xFF7FD4FF;
    std::uint32_t selected = 0xFF3D9BFF;
    std::uint32_t lightOn = 0xFFFFD54A; // glyphs
    std::uint32_t lightOff = 0xFF8A8F98;
    bool operator==(const PictureColors&) const = default;
};

// What lights the faces of a shaded picture.
enum class Lighting {
    Default,  // two distant lights that come with the eye
    OfDrawing // the lights of the drawing, those that are on
};

struct RenderOptions {
    gs::VisualStyle style = gs::VisualStyle::Wireframe;
    Lighting lighting = Lighting::Default;
    PictureColors colors;
    // While the picture moves it is made faster: less is computed, the size stays.
    bool isMoving = false;
    double pixelRatio = 1; // pixels per logical pixel: lines and glyphs are as much thicker and larger
    bool operator==(const RenderOptions&) const = default;
};

class Renderer {
public:
    // With so many threads; 0: as many as the machine has, within reason. The picture is the same with any number.
    explicit Renderer(unsigned threads = 0);
    ~Renderer();
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    // Pictures that are empty or wider or higher than kMostPixels stay as they are.
    static constexpr int kMostPixels = 16384;
    void render(const gs::SceneData& scene, const gs::Camera& camera, const RenderOptions& options,
                const PixelBuffer& target);

private:
    class Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quor::desktop
