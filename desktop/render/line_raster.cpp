#include "desktop/render/line_raster.h"

#include "desktop/render/colors.h"

#include <cmath>

namespace quor::desktop {
namespace {

// A line along the axis in which it is longer (the major one): one step a pixel.
struct Walk {
    bool isSteep; // the major axis is y
    float major0, major1, minor0, minor1;
    float depth0, depthStep;
    float slope; // of the minor axis, -1 to 1

    explicit Walk(const LineEnds& e) : isSteep(std::abs(e.y1 - e.y0) > std::abs(e.x1 - e.x0)) {
        const bool isBackward = isSteep ? e.y1 < e.y0 : e.x1 < e.x0;
        const float ax = isBackward ? e.x1 : e.x0;
        const float ay = isBackward ? e.y1 : e.y0;
        const float bx = isBackward ? e.x0 : e.x1;
        const float by = isBackward ? e.y0 : e.y1;
        depth0 = isBackward ? e.depth1 : e.depth0;
        major0 = isSteep ? ay : ax;
        minor0 = isSteep ? ax : ay;
        major1 = isSteep ? by : bx;
        minor1 = isSteep ? bx : by;
        const float run = major1 - major0;
        const float perStep = run > 0 ? 1 / run : 0;
        slope = run > 1e-6F ? std::clamp((minor1 - minor0) * perStep, -1.0F, 1.0F) : 0;
        depthStep = run > 1e-6F ? ((isBackward ? e.depth0 : e.depth1) - depth0) * perStep : 0;
    }
};

// Of what is at most a little below 0, as places on the picture are.
int rounded(float value) {
    constexpr int lift = 1024;
    return static_cast<int>(value + (lift + 0.5F)) - lift;
}

struct Steps {
    int first, last;
};

// The steps from `low` to `high` at which the line is on the picture and can be in the band.
Steps stepsIn(const Frame& frame, Band band, const Walk& walk, int low, int high, float reach) {
    if (walk.isSteep)
        return {std::max(low, band.top), std::min(high, band.bottom - 1)};
    Steps steps{std::max(low, 0), std::min(high, frame.width() - 1)};
    if (std::abs(walk.slope) < 1e-3F)
        return steps;
    const float toTop = walk.major0 + (static_cast<float>(band.top) - reach - walk.minor0) / walk.slope;
    const float toBottom = walk.major0 + (static_cast<float>(band.bottom) + reach - walk.minor0) / walk.slope;
    steps.first = std::max(steps.first, toWhole(std::min(toTop, toBottom) - 1, steps.first, steps.last + 1));
    steps.last = std::min(steps.last, toWhole(std::max(toTop, toBottom) + 2, steps.first - 1, steps.last));
    return steps;
}

struct Pixel {
    std::uint32_t* color;
    float* depth;
};

Pixel pixelAt(Frame& frame, int x, int y) { return {frame.row(y) + x, frame.depths(y) + x}; }

// Of lines at the same place the last is seen all along, though their depths differ by what rounding leaves.
constexpr float kSamePlace = 2e-5F;
// Such a share of their depth may lines of one entity lie behind each other at their joint.
constexpr float kJoint = 2e-3F;

void put(Pixel pixel, float depth, std::uint32_t color) {
    if (depth >= *pixel.depth - kSamePlace) {
        *pixel.depth = depth;
        *pixel.color = color;
    }
}

constexpr int kFraction = 16;

// Where the line is at its step number 0, in pixels of 2^-16, so that steps add up to the same in each band.
struct FixedWalk {
    int firstStep;
    std::int64_t minor;
    std::int64_t slope;
    float depth;

    explicit FixedWalk(const Walk& walk) : firstStep(rounded(walk.major0)) {
        constexpr float one = 1 << kFraction;
        const float ahead = static_cast<float>(firstStep) - walk.major0;
        slope = static_cast<std::int64_t>(walk.slope * one);
        minor = static_cast<std::int64_t>((walk.minor0 + ahead * walk.slope) * one) + (1 << (kFraction - 1));
        depth = walk.depth0 + ahead * walk.depthStep;
    }
    [[nodiscard]] int minorAt(int step) const { return static_cast<int>((minor + step * slope) >> kFraction); }
};

void drawThinSteep(Frame& frame, const Walk& walk, const FixedWalk& fixed, Steps steps, std::uint32_t color) {
    for (int y = steps.first; y <= steps.last; ++y) {
        const int step = y - fixed.firstStep;
        const int x = fixed.minorAt(step);
        if (static_cast<unsigned>(x) < static_cast<unsigned>(frame.width()))
            put(pixelAt(frame, x, y), fixed.depth + static_cast<float>(step) * walk.depthStep, color);
    }
}

void drawThinFlat(Frame& frame, Band band, const Walk& walk, const FixedWalk& fixed, Steps steps, std::uint32_t color) {
    const auto rows = static_cast<unsigned>(band.bottom - band.top);
    for (int x = steps.first; x <= steps.last; ++x) {
        const int step = x - fixed.firstStep;
        const int y = fixed.minorAt(step);
        if (static_cast<unsigned>(y - band.top) < rows)
            put(pixelAt(frame, x, y), fixed.depth + static_cast<float>(step) * walk.depthStep, color);
    }
}

void drawThick(Frame& frame, Band band, const Walk& walk, const FixedWalk& fixed, Steps steps, const ScreenLine& line) {
    const int width = rounded(line.width);
    for (int major = steps.first; major <= steps.last; ++major) {
        const int step = major - fixed.firstStep;
        const float depth = fixed.depth + static_cast<float>(step) * walk.depthStep;
        const int middle = fixed.minorAt(step) - (width - 1) / 2;
        for (int minor = middle; minor < middle + width; ++minor) {
            const int x = walk.isSteep ? minor : major;
            const int y = walk.isSteep ? major : minor;
            if (x >= 0 && x < frame.width() && y >= band.top && y < band.bottom)
                put(pixelAt(frame, x, y), depth, line.color);
        }
    }
}

// Lets `covered` of the pixel (1 to 255) show the line.
void blend(Frame& frame, int x, int y, float depth, const ScreenLine& line, std::uint32_t covered) {
    const Pixel pixel = pixelAt(frame, x, y);
    std::uint32_t& stroke = frame.strokes(y)[x];
    const bool isJoint = (stroke >> 8) == line.owner;
    const std::uint32_t before = isJoint ? stroke & 0xFFU : 0;
    if (covered <= before || !(depth >= *pixel.depth - (isJoint ? kJoint * (1 + std::abs(depth)) : kSamePlace)))
        return;
    *pixel.color = mixed(*pixel.color, line.color, (covered - before) * 255 / (255 - before));
    stroke = (line.owner << 8) | covered;
    constexpr std::uint32_t half = 128;
    if (covered >= half)
        *pixel.depth = depth;
}

// Lines along the axes of the picture stand on whole pixels, or they would be two pixels wide and pale.
void settle(Walk& walk, float width) {
    if (std::abs(walk.minor1 - walk.minor0) > 0.02F)
        return;
    const bool isOdd = rounded(width) % 2 == 1;
    walk.minor0 = isOdd ? std::floor(walk.minor0 + 0.5F) : std::floor(walk.minor0) + 0.5F;
    walk.minor1 = walk.minor0;
    walk.slope = 0;
}

} // namespace

void drawPlainLine(Frame& frame, Band band, const ScreenLine& line) {
    const Walk walk(line.ends);
    const FixedWalk fixed(walk);
    const Steps steps = stepsIn(frame, band, walk, fixed.firstStep, rounded(walk.major1), line.width);
    if (line.width > 1.5F)
        drawThick(frame, band, walk, fixed, steps, line);
    else if (walk.isSteep)
        drawThinSteep(frame, walk, fixed, steps, line.color);
    else
        drawThinFlat(frame, band, walk, fixed, steps, line.color);
}

void drawSmoothLine(Frame& frame, Band band, const ScreenLine& line) {
    Walk walk(line.ends);
    settle(walk, line.width);
    const float half = line.width / 2;
    const float shortening = 1 / std::sqrt(1 + walk.slope * walk.slope);
    const float reach = (half + 0.5F) / shortening;
    const float run = (walk.major1 - walk.major0) / shortening;
    const Steps steps = stepsIn(frame, band, walk, rounded(walk.major0 - half), rounded(walk.major1 + half), reach);
    const int lowest = walk.isSteep ? 0 : band.top;
    const int highest = walk.isSteep ? frame.width() - 1 : band.bottom - 1;
    for (int major = steps.first; major <= steps.last; ++major) {
        const float ahead = static_cast<float>(major) - walk.major0;
        const float center = walk.minor0 + ahead * walk.slope;
        const float depth = walk.depth0 + std::clamp(ahead, 0.0F, walk.major1 - walk.major0) * walk.depthStep;
        const int first = std::max(lowest, rounded(center - reach));
        const int last = std::min(highest, rounded(center + reach));
        for (int minor = first; minor <= last; ++minor) {
            const float aside = static_cast<float>(minor) - center;
            const float along = ahead / shortening + aside * walk.slope * shortening;
            const float across = std::clamp(half + 0.5F - std::abs(aside) * shortening, 0.0F, 1.0F);
            const float within = std::clamp(half + 0.5F + std::min(along, run - along), 0.0F, 1.0F);
            const auto covered = static_cast<std::uint32_t>(rounded(across * within * 255));
            if (covered > 0)
                blend(frame, walk.isSteep ? minor : major, walk.isSteep ? major : minor, depth, line, covered);
        }
    }
}

} // namespace quor::desktop
