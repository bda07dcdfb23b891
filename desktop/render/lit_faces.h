// The faces of a picture in the light of the drawing, kept from one picture to the next: where only another object
// stands out, all of this is the same.
#pragma once

#include "desktop/render/frame.h"

namespace quor::desktop {

class LitFaces {
public:
    // What they depend on.
    struct Subject {
        std::uint64_t contents = 0;
        gs::Camera camera;
        RenderOptions options;
        int width = 0;
        int height = 0;
        bool operator==(const Subject&) const = default;
    };

    [[nodiscard]] bool areOf(const Subject& subject) const { return subject.contents != 0 && subject == subject_; }
    // Room for those of the subject, which are kept band by band.
    void start(const Subject& subject);
    void keep(Frame& frame, Band band);
    // The other way: what clearing and drawing the band would make.
    void restore(Frame& frame, Band band) const;

private:
    // A pixel.
    struct Seen {
        std::uint32_t color = 0;
        float depth = 0;
        std::uint32_t face = 0;
    };
    Subject subject_;
    std::vector<Seen> seen_;
};

} // namespace quor::desktop
