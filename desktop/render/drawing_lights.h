// Lets the lights of the drawing fall on the faces of a picture.
#pragma once

#include "desktop/render/frame.h"
#include "desktop/render/shading_lights.h"
#include "desktop/render/shadow_tree.h"
#include "desktop/render/thread_pool.h"
#include "desktop/render/tone_mapping.h"

namespace quor::desktop {

class DrawingLights {
public:
    // The frame holds faces in their own colours and which triangle is seen where; they get the colours that they have
    // in this light, and go on saying which triangle they are of.
    void shade(Frame& frame, const gs::SceneData& scene, const gs::Camera& camera, const ViewTransform& view,
               const RenderOptions& options, ThreadPool& threads);

private:
    // What is computed of one band.
    struct BandLight {
        LightSamples samples;
        std::vector<std::uint32_t> triangles; // that the samples show, plus one
        std::vector<Vector3> own;             // colours of the faces at the samples
        std::vector<float> facing;            // how much the samples' faces are turned to the eye
        std::vector<std::uint8_t> dither;
        std::vector<std::uint32_t> colors; // in the end
        bool isDark = false;               // no light falls on anything in the picture
        void clear();
    };
    // Each pixel's triangle is replaced by the number of its sample plus one. One sample stands for a block of pixels
    // as far as they show the same triangle.
    static void takeSamples(Frame& frame, Band band, const gs::SceneData& scene, const ViewTransform& view, int block,
                            BandLight& light);
    static void paint(Frame& frame, Band band, const ToneCurve& curve, BandLight& light);

    // What all lights send to the samples of the band.
    void light(Frame& frame, Band band, const std::vector<ShadingLight>& lights, const RenderOptions& options,
               BandLight& light) const;
    void findShadows(const gs::SceneData& scene);

    std::vector<BandLight> bands_;
    ShadowTree shadows_;
    std::uint64_t shadowsOf_ = 0; // contents of a scene
};

} // namespace quor::desktop
