// Colours the faces of what stands out, in a picture that is lit already.
#pragma once

#include "desktop/render/frame.h"

namespace quor::desktop {

// The colour of a face of something that stands out.
[[nodiscard]] std::uint32_t emphasized(std::uint32_t color, gs::Emphasis emphasis, const PictureColors& colors);

class FaceTint {
public:
    // Finds the faces of what stands out.
    void collect(const gs::SceneData& scene);
    // The frame says which triangle is seen where.
    void apply(Frame& frame, Band band, const PictureColors& colors) const;

private:
    struct Run {
        std::uint32_t first = 0; // triangle
        std::uint32_t end = 0;   // the one after the last
        gs::Emphasis emphasis = gs::Emphasis::None;
    };
    [[nodiscard]] gs::Emphasis of(std::uint32_t triangle) const;
    std::vector<Run> runs_; // in the order of their triangles
};

} // namespace quor::desktop
