#include "host/props/lamp_color.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace quor::props {

namespace {

struct Chromaticity {
    double x;
    double y;
};

// Where the colour of a glowing body lies between 1667 and 25000 K: cubic curves in the inverse temperature.
Chromaticity chromaticityOf(double kelvin) {
    const double t = 1e3 / kelvin;
    const double x = kelvin <= 4000 ? ((-0.2661239 * t - 0.2343589) * t + 0.8776956) * t + 0.179910
                                    : ((-3.0258469 * t + 2.1070379) * t + 0.2226347) * t + 0.240390;
    if (kelvin <= 2222)
        return {x, ((-1.1063814 * x - 1.34811020) * x + 2.18555832) * x - 0.20219683};
    if (kelvin <= 4000)
        return {x, ((-0.9549476 * x - 1.37418593) * x + 2.09137015) * x - 0.16748867};
    return {x, ((3.0817580 * x - 5.87338670) * x + 3.75112997) * x - 0.37001483};
}

// The response of a screen: linear light to the number of a component.
std::uint8_t component(double linear) {
    const double value = linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
    return static_cast<std::uint8_t>(std::lround(255 * std::clamp(value, 0.0, 1.0)));
}

// The temperatures of the lamps whose light is close to that of a glowing body, by the numbers of the presets; 0:
// white.
constexpr double kPresetTemperatures[] = {0,    4230, 4100, 3450, 6430, 2856, 6000, 3200,
                                          3200, 4000, 5700, 4500, 2100, 1800, 0};

} // namespace

ZrCmColor colorOfTemperature(double kelvin) {
    const auto [x, y] = chromaticityOf(std::clamp(kelvin, 1667.0, 25000.0));
    const double z = 1 - x - y;
    std::array<double, 3> rgb{3.2406 * x - 1.5372 * y - 0.4986 * z, -0.9689 * x + 1.8758 * y + 0.0415 * z,
                              0.0557 * x - 0.2040 * y + 1.0570 * z};
    const double largest = *std::max_element(rgb.begin(), rgb.end());
    for (double& part : rgb)
        part = std::max(part, 0.0) / largest;
    return ZrCmColor::fromRGB(component(rgb[0]), component(rgb[1]), component(rgb[2]));
}

ZrCmColor colorOfPreset(LampColorPreset preset) {
    const auto index = static_cast<std::size_t>(preset);
    const double kelvin = index < std::size(kPresetTemperatures) ? kPresetTemperatures[index] : 0;
    return kelvin > 0 ? colorOfTemperature(kelvin) : ZrCmColor::fromRGB(255, 255, 255);
}

ZrCmColor resultingColor(const ZrDbLight& light) {
    const ZrCmColor lamp = light.lampColorType() == LampColorType::kPreset ? colorOfPreset(light.lampColorPreset())
                                                                           : colorOfTemperature(light.lampColorTemp());
    const ZrCmColor& filter = light.lightColor();
    const auto through = [](std::uint8_t a, std::uint8_t b) { return static_cast<std::uint8_t>((a * b + 127) / 255); };
    return ZrCmColor::fromRGB(through(lamp.red(), filter.red()), through(lamp.green(), filter.green()),
                              through(lamp.blue(), filter.blue()));
}

} // namespace quor::props
