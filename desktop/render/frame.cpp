#include "desktop/render/frame.h"

#include "desktop/render/dither.h"

#include <array>

namespace quor::desktop {
namespace {

// Red, green and blue in sixteenths.
using Gradient = std::array<std::uint32_t, 3>;
constexpr std::array<int, 3> kShifts{16, 8, 0};

Gradient gradientAt(const PictureColors& colors, int y, int last) {
    Gradient at{};
    for (std::size_t i = 0; i < at.size(); ++i) {
        const auto part = [&](std::uint32_t color) {
            return static_cast<std::int64_t>((color >> kShifts[i]) & 0xFFU) * kDitherSteps;
        };
        const std::int64_t top = part(colors.backgroundTop);
        at[i] = static_cast<std::uint32_t>(top + (part(colors.backgroundBottom) - top) * y / last);
    }
    return at;
}

void fillRow(std::uint32_t* row, int width, int y, const Gradient& gradient) {
    std::array<std::uint32_t, 4> pattern{};
    for (std::size_t x = 0; x < pattern.size(); ++x) {
        pattern[x] = 0xFF000000U;
        for (std::size_t i = 0; i < gradient.size(); ++i)
            pattern[x] |= (gradient[i] + ditherAt(static_cast<int>(x), y)) / kDitherSteps << kShifts[i];
    }
    for (int x = 0; x < width; ++x)
        row[x] = pattern[static_cast<unsigned>(x) % 4];
}

} // namespace

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
    for (int y = band.top; y < band.bottom; ++y)
        fillRow(row(y), width(), y, gradientAt(colors, y, std::max(1, height() - 1)));
    const auto first = static_cast<std::ptrdiff_t>(offset(band.top));
    const auto last = static_cast<std::ptrdiff_t>(offset(band.bottom));
    std::fill(depths_.begin() + first, depths_.begin() + last, kFarthest);
    if (hasFaces_)
        std::fill(faces_.begin() + first, faces_.begin() + last, 0U);
    clearStrokes(band);
}

void Frame::clearStrokes(Band band) {
    if (hasStrokes_)
        std::fill(strokes_.begin() + static_cast<std::ptrdiff_t>(offset(band.top)),
                  strokes_.begin() + static_cast<std::ptrdiff_t>(offset(band.bottom)), 0U);
}

} // namespace quor::desktop
