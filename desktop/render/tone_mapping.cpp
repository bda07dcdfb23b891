#include "desktop/render/tone_mapping.h"

#include "desktop/render/dither.h"

#include <algorithm>

namespace quor::desktop {
namespace {

constexpr float kMiddle = 0.26F;   // what the mean of a picture becomes before the curve
constexpr float kBrightest = 3.0F; // what its bright places become at most
constexpr double kBrightShare = 0.97;

// Of light from 0 to 1, in sixteenths of the screen's steps.
using ScreenValues = std::array<std::uint16_t, 4097>;

ScreenValues makeScreenValues() {
    ScreenValues values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const float light = static_cast<float>(i) / static_cast<float>(values.size() - 1);
        const float shown = light <= 0.0031308F ? 12.92F * light : 1.055F * std::pow(light, 1 / 2.4F) - 0.055F;
        values[i] = static_cast<std::uint16_t>(toWhole(shown * 255 * kDitherSteps + 0.5F, 0, 255 * kDitherSteps));
    }
    return values;
}

const ScreenValues kScreenValues = makeScreenValues();

std::array<float, 256> makeLinearBytes() {
    std::array<float, 256> values{};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = std::pow(static_cast<float>(i) / 255, 2.2F);
    return values;
}

const std::array<float, 256> kLinearBytes = makeLinearBytes();

} // namespace

Vector3 linearLight(std::uint32_t rgb) {
    return {kLinearBytes[(rgb >> 16) & 0xFFU], kLinearBytes[(rgb >> 8) & 0xFFU], kLinearBytes[rgb & 0xFFU]};
}

void BrightnessCounts::add(float luminance, std::uint32_t pixels) {
    if (!(luminance > 0))
        return;
    const float power = std::log2(luminance) * kStepsOfDoubling;
    const int last = static_cast<int>(counts_.size()) - 1;
    const int index = toWhole(power - static_cast<float>(kLowest * kStepsOfDoubling), 0, last);
    counts_[static_cast<std::size_t>(index)] += pixels;
    total_ += pixels;
}

void BrightnessCounts::add(const BrightnessCounts& other) {
    for (std::size_t i = 0; i < counts_.size(); ++i)
        counts_[i] += other.counts_[i];
    total_ += other.total_;
}

float BrightnessCounts::atShare(double share) const {
    const double wanted = static_cast<double>(total_) * share;
    double below = 0;
    for (std::size_t i = 0; i < counts_.size(); ++i) {
        const auto here = static_cast<double>(counts_[i]);
        if (here > 0 && below + here >= wanted)
            return std::exp2(static_cast<float>(kLowest) +
                             (static_cast<float>(i) + static_cast<float>((wanted - below) / here)) / kStepsOfDoubling);
        below += here;
    }
    return 0;
}

float BrightnessCounts::mean() const {
    double sum = 0;
    for (std::size_t i = 0; i < counts_.size(); ++i)
        sum += static_cast<double>(counts_[i]) * (static_cast<double>(i) + 0.5);
    const double index = sum / static_cast<double>(std::max<std::uint64_t>(total_, 1));
    return std::exp2(static_cast<float>(kLowest + index / kStepsOfDoubling));
}

ToneCurve::ToneCurve(const BrightnessCounts& counts) {
    if (!counts.isEmpty()) {
        const float bright = counts.atShare(kBrightShare);
        exposure_ = std::min(kMiddle / counts.mean(), kBrightest / bright);
        const float white = std::max(1.5F, bright * exposure_ * 1.5F);
        perWhite_ = 1 / (white * white);
    }
}

std::uint32_t ToneCurve::color(Vector3 exposed, std::uint32_t dither) const {
    const auto byte = [this, dither](float light) {
        const float curved = light * (1 + light * perWhite_) / (1 + light);
        constexpr int last = static_cast<int>(std::tuple_size_v<ScreenValues>) - 1;
        const int index = toWhole(curved * last + 0.5F, 0, last);
        return (kScreenValues[static_cast<std::size_t>(index)] + dither) / kDitherSteps;
    };
    return 0xFF000000U | byte(exposed.x) << 16 | byte(exposed.y) << 8 | byte(exposed.z);
}

} // namespace quor::desktop
