#include "desktop/render/face_raster.h"

namespace quor::desktop {
namespace {

// One side, from its upper end to its lower one, so that two faces that share it find the same pixels.
struct Side {
    double x, y, bottom;
    double perRow;

    Side(const ScreenFace& face, std::size_t from, std::size_t to) {
        if (face.y[to] < face.y[from] || (face.y[to] == face.y[from] && face.x[to] < face.x[from]))
            std::swap(from, to);
        x = face.x[from];
        y = face.y[from];
        bottom = face.y[to];
        perRow = bottom > y ? (face.x[to] - x) / (bottom - y) : 0;
    }
    [[nodiscard]] bool crosses(double row) const { return row >= y && row < bottom; }
    [[nodiscard]] double at(double row) const { return x + (row - y) * perRow; }
};

struct Span {
    int first, last;
};

Span spanOf(const std::array<Side, 3>& sides, int row, int width) {
    double left = 1e9;
    double right = -1e9;
    for (const Side& side : sides) {
        if (side.crosses(row)) {
            left = std::min(left, side.at(row));
            right = std::max(right, side.at(row));
        }
    }
    const double end = width;
    return {static_cast<int>(std::ceil(std::clamp(left, 0.0, end))),
            static_cast<int>(std::ceil(std::clamp(right, 0.0, end))) - 1};
}

template <bool keepsNumbers>
void drawRows(Frame& frame, int top, int bottom, const ScreenFace& face) {
    const std::array sides{Side(face, 0, 1), Side(face, 1, 2), Side(face, 2, 0)};
    const DepthPlane& plane = face.plane;
    for (int y = top; y < bottom; ++y) {
        const Span span = spanOf(sides, y, frame.width());
        std::uint32_t* const colors = frame.row(y);
        float* const depths = frame.depths(y);
        [[maybe_unused]] std::uint32_t* const numbers = keepsNumbers ? frame.faces(y) : nullptr;
        const float atRow = plane.depth + plane.down * (static_cast<float>(y) - plane.y0);
        for (int x = span.first; x <= span.last; ++x) {
            const float exact = atRow + plane.right * (static_cast<float>(x) - plane.x0);
            const float depth = std::min(std::max(exact, plane.low), plane.high);
            if (depth > depths[x]) {
                depths[x] = depth;
                colors[x] = face.color;
                if constexpr (keepsNumbers)
                    numbers[x] = face.number;
            }
        }
    }
}

} // namespace

void drawFace(Frame& frame, Band band, const ScreenFace& face, bool keepsNumbers) {
    const auto [low, high] = std::minmax_element(face.y.begin(), face.y.end());
    const int top = toWhole(*low, band.top, band.bottom);
    const int bottom = toWhole(*high + 1, band.top, band.bottom);
    if (keepsNumbers)
        drawRows<true>(frame, top, bottom, face);
    else
        drawRows<false>(frame, top, bottom, face);
}

} // namespace quor::desktop
