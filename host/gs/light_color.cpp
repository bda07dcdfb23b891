#include "host/gs/light_color.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quor::gs {

namespace {

constexpr double kDaylight = 6504;
constexpr double kColdest = 1000;
constexpr double kHottest = 20000;

// In the order of LampColorPreset. Discharge lamps are no glowing bodies; these are the temperatures by which their
// white is sold, and for those that are not white the nearest hue.
constexpr std::array<double, 15> kTemperatures{
    kDaylight, // D65
    4000,      // fluorescent
    4200,      // cool white
    3500,      // white fluorescent
    6500,      // daylight fluorescent
    2850,      // incandescent
    6100,      // xenon
    3100,      // halogen
    3300,      // quartz
    4300,      // metal halide
    6800,      // mercury
    3900,      // phosphor mercury
    2050,      // high pressure sodium
    1750,      // low pressure sodium
    kDaylight, // custom
};

// How much of one wavelength a body sends out, by the law of radiation, in proportion to that at daylight.
double glow(double nanometres, double kelvin) {
    constexpr double kSecondConstant = 1.438777e7; // nanometre kelvin
    return std::expm1(kSecondConstant / (nanometres * kDaylight)) / std::expm1(kSecondConstant / (nanometres * kelvin));
}

std::uint32_t pack(const std::array<double, 3>& shares) {
    std::uint32_t rgb = 0;
    for (const double share : shares)
        rgb = rgb << 8U | static_cast<std::uint32_t>(std::lround(std::clamp(share, 0.0, 1.0) * 255));
    return rgb;
}

} // namespace

double temperatureOf(LampColorPreset preset) {
    const auto index = static_cast<std::size_t>(preset);
    return index < kTemperatures.size() ? kTemperatures[index] : kDaylight;
}

std::uint32_t glowRgb(double kelvin) {
    constexpr std::array<double, 3> kPrimaries{640, 550, 450}; // nanometres
    constexpr double kGamma = 2.2;
    const double temperature = std::isfinite(kelvin) ? std::clamp(kelvin, kColdest, kHottest) : kDaylight;
    std::array<double, 3> shares{};
    for (std::size_t i = 0; i < shares.size(); ++i)
        shares[i] = glow(kPrimaries[i], temperature);
    const double brightest = *std::max_element(shares.begin(), shares.end());
    for (double& share : shares)
        share = std::pow(share / brightest, 1 / kGamma);
    return pack(shares);
}

std::uint32_t filteredRgb(std::uint32_t light, std::uint32_t filter) {
    std::array<double, 3> shares{};
    for (std::size_t i = 0; i < shares.size(); ++i) {
        const unsigned shift = 16 - 8 * static_cast<unsigned>(i);
        shares[i] = (light >> shift & 0xFFU) / 255.0 * ((filter >> shift & 0xFFU) / 255.0);
    }
    return pack(shares);
}

} // namespace quor::gs
