#include "desktop/render/renderer.h"

#include "desktop/render/drawing_lights.h"
#include "desktop/render/scene_faces.h"
#include "desktop/render/scene_glyphs.h"
#include "desktop/render/scene_lines.h"
#include "desktop/render/thread_pool.h"

#include <cmath>

namespace quor::desktop {
namespace {

bool canShow(const PixelBuffer& target) {
    return target.pixels != nullptr && target.width > 0 && target.height > 0 && target.stride >= target.width &&
           target.width <= Renderer::kMostPixels && target.height <= Renderer::kMostPixels;
}

// The options as they can be drawn with.
RenderOptions usable(RenderOptions options) {
    constexpr double smallest = 0.25;
    constexpr double largest = 8;
    options.pixelRatio = std::isfinite(options.pixelRatio) ? std::clamp(options.pixelRatio, smallest, largest) : 1;
    return options;
}

} // namespace

class Renderer::Parts {
public:
    explicit Parts(unsigned threads) : threads_(threads) {}

    void render(const gs::SceneData& scene, const gs::Camera& camera, const RenderOptions& options,
                const PixelBuffer& target) {
        const ViewTransform view(camera, scene.origin, target.width, target.height);
        const bool isLit = options.style == gs::VisualStyle::Shaded && options.lighting == Lighting::OfDrawing;
        frame_.start(target, isLit, !options.isMoving);
        collect(view.isValid() ? scene : gs::SceneData{}, view, options);
        const auto bands = static_cast<std::size_t>(frame_.bandCount());
        if (!isLit) {
            threads_.run(bands, [&](std::size_t band) {
                drawFaces(band, options);
                drawOver(band, options);
            });
            return;
        }
        threads_.run(bands, [&](std::size_t band) { drawFaces(band, options); });
        lights_.shade(frame_, scene, camera, view, options, threads_);
        threads_.run(bands, [&](std::size_t band) { drawOver(band, options); });
    }

private:
    void collect(const gs::SceneData& scene, const ViewTransform& view, const RenderOptions& options) {
        runs_.collect(scene, view);
        const std::size_t pieces = runs_.pieceCount();
        lines_.resize(std::max(lines_.size(), pieces));
        faces_.resize(std::max(faces_.size(), pieces));
        threads_.run(pieces + 1, [&](std::size_t task) {
            if (task == 0) {
                glyphs_.collect(scene, view, options);
                return;
            }
            const std::size_t piece = task - 1;
            lines_[piece].start(view.height());
            faces_[piece].start(view.height());
            collectLines(scene, view, options, runs_.piece(piece), lines_[piece]);
            if (options.style == gs::VisualStyle::Shaded)
                collectFaces(scene, view, options, runs_.piece(piece), faces_[piece]);
        });
    }

    void drawFaces(std::size_t number, const RenderOptions& options) {
        const Band band = frame_.band(number);
        const bool keepsNumbers = options.lighting == Lighting::OfDrawing;
        frame_.clear(band, options.colors);
        for (std::size_t piece = 0; piece < runs_.pieceCount(); ++piece)
            faces_[piece].forEach(number, [&](const ScreenFace& face) { drawFace(frame_, band, face, keepsNumbers); });
    }

    // Lines and symbols, on what is there.
    void drawOver(std::size_t number, const RenderOptions& options) {
        const Band band = frame_.band(number);
        const auto drawLine = options.isMoving ? drawPlainLine : drawSmoothLine;
        for (std::size_t piece = 0; piece < runs_.pieceCount(); ++piece)
            lines_[piece].forEach(number, [&](const ScreenLine& line) { drawLine(frame_, band, line); });
        glyphs_.draw(frame_, band, number);
    }

    ThreadPool threads_;
    Frame frame_;
    SceneRuns runs_;
    std::vector<BandBlock<ScreenLine>> lines_;
    std::vector<BandBlock<ScreenFace>> faces_;
    SceneGlyphs glyphs_;
    DrawingLights lights_;
};

Renderer::Renderer(unsigned threads) : parts_(std::make_unique<Parts>(threads)) {}

Renderer::~Renderer() = default;

void Renderer::render(const gs::SceneData& scene, const gs::Camera& camera, const RenderOptions& options,
                      const PixelBuffer& target) {
    if (canShow(target))
        parts_->render(scene, camera, usable(options), target);
}

} // namespace quor::desktop
