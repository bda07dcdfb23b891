#include "desktop/render/frame.h"

#include "desktop/render/colors.h"

namespace quor::desktop {

void Frame::start(const PixelBuffer& target, bool needsFaces, bool needsStrokes) {
    target_ = target;
    hasFaces_ = needsFaces;
    hasStrokes_ = needsStrokes;
    const std::size_t size = offset(target.height);
    depths_.resize(size);
    faces_.resize(needsFaces ? size : 0);
    strokes_.resize(needsStrokes ? size : 0);
}

void Frame::clear(Band band, const PictureColors& colors) {
    for (int y = band.top; y < band.bottom; ++y) {
        const auto share = static_cast<std::uint32_t>(static_cast<std::int64_t>(y) * 255 / std::max(1, height() - 1));
        std::fill_n(row(y), width(), mixed(colors.backgroundTop, colors.backgroundBottom, share));
    }
    const auto first = static_cast<std::ptrdiff_t>(offset(band.top));
    const auto last = static_cast<std::ptrdiff_t>(offset(band.bottom));
    std::fill(depths_.begin() + first, depths_.begin() + last, kFarthest);
    if (hasFaces_)
        std::fill(faces_.begin() + first, faces_.begin() + last, 0U);
    if (hasStrokes_)
        std::fill(strokes_.begin() + first, strokes_.begin() + last, 0U);
}

} // namespace quor::desktop
