#include "desktop/render/lit_faces.h"

namespace quor::desktop {

void LitFaces::start(const Subject& subject) {
    subject_ = subject;
    seen_.resize(static_cast<std::size_t>(subject.width) * static_cast<std::size_t>(subject.height));
}

void LitFaces::keep(Frame& frame, Band band) {
    std::size_t at = static_cast<std::size_t>(band.top) * static_cast<std::size_t>(frame.width());
    for (int y = band.top; y < band.bottom; ++y)
        for (int x = 0; x < frame.width(); ++x)
            seen_[at++] = {frame.row(y)[x], frame.depths(y)[x], frame.faces(y)[x]};
}

void LitFaces::restore(Frame& frame, Band band) const {
    std::size_t at = static_cast<std::size_t>(band.top) * static_cast<std::size_t>(frame.width());
    for (int y = band.top; y < band.bottom; ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            const Seen& seen = seen_[at++];
            frame.row(y)[x] = seen.color;
            frame.depths(y)[x] = seen.depth;
            frame.faces(y)[x] = seen.face;
        }
    }
    frame.clearStrokes(band);
}

} // namespace quor::desktop
