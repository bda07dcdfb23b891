#include "desktop/render/renderer.h"

#include "desktop/render/drawing_lights.h"
#include "desktop/render/face_tint.h"
#include "desktop/render/lit_faces.h"
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
        const bool isLit = gs::showsFaces(options.style) && options.lighting == Lighting::OfDrawing;
        const LitFaces::Subject subject{scene.contents, camera, options, target.width, target.height};
        const bool isLitAlready = isLit && litFaces_.areOf(subject);
        frame_.start(target, isLit, !options.isMoving);
        const gs::SceneData& seen = view.isValid() ? scene : nothing_;
        collect(seen, view, camera, options, !isLitAlready);
        if (isLit)
            tint_.collect(seen);
        if (isLit && !isLitAlready) {
            eachBand([&](std::size_t band) { drawFaces(band, options); });
            lights_.shade(frame_, seen, camera, view, options, threads_);
        }
        const bool isKept = isLit && !isLitAlready && !options.isMoving && scene.contents != 0;
        if (isKept)
            litFaces_.start(subject);
        eachBand([&](std::size_t number) {
            const Band band = frame_.band(number);
            if (!isLit)
                drawFaces(number, options);
            if (isLitAlready)
                litFaces_.restore(frame_, band);
            if (isKept)
                litFaces_.keep(frame_, band);
            if (isLit)
                tint_.apply(frame_, band, options.colors);
            drawOver(number, options);
        });
    }

private:
    template <class Draw>
    void eachBand(const Draw& draw) {
        threads_.run(static_cast<std::size_t>(frame_.bandCount()), draw);
    }

    void collect(const gs::SceneData& scene, const ViewTransform& view, const gs::Camera& camera,
                 const RenderOptions& options, bool needsFaces) {
        const bool isOpen = needsFaces && options.style == gs::VisualStyle::Interior;
        const gs::CutAway cutAway = isOpen ? gs::CutAway(scene, camera) : gs::CutAway();
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
            if (needsFaces && gs::showsFaces(options.style))
                collectFaces(scene, view, options, runs_.piece(piece), cutAway, faces_[piece]);
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
    LitFaces litFaces_;
    FaceTint tint_;
    const gs::SceneData nothing_;
};

Renderer::Renderer(unsigned threads) : parts_(std::make_unique<Parts>(threads)) {}

Renderer::~Renderer() = default;

void Renderer::render(const gs::SceneData& scene, const gs::Camera& camera, const RenderOptions& options,
                      const PixelBuffer& target) {
    if (canShow(target))
        parts_->render(scene, camera, usable(options), target);
}

} // namespace quor::desktop
