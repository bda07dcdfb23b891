// Any bytes as a photometric web file: reading must end with a web that keeps its promises or with an error that can be
// told.
#include "host/ies/reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numbers>
#include <string_view>
#include <vector>

namespace {

using quor::ies::PhotometricWeb;

constexpr double kRounding = 1 + 1e-9;

void require(bool holds) {
    if (!holds)
        std::abort();
}

void checkAngles(const std::vector<double>& angles) {
    require(!angles.empty() && std::isfinite(angles.front()) && std::isfinite(angles.back()));
    require(std::adjacent_find(angles.begin(), angles.end(), [](double a, double b) { return !(a < b); }) ==
            angles.end());
}

void checkIntensities(const PhotometricWeb& web, double most) {
    constexpr std::array<double, 9> kSome{-400, -90, -1e-20, 0, 33.3, 90, 181, 270, 725};
    for (const double horizontal : kSome) {
        for (const double vertical : kSome) {
            const double intensity = quor::ies::intensityAt(web, horizontal, vertical);
            require(intensity >= 0 && intensity <= most * kRounding);
        }
    }
    const std::size_t plane = web.horizontal.size() / 2;
    const std::size_t row = web.vertical.size() / 2;
    require(quor::ies::intensityAt(web, web.horizontal[plane], web.vertical[row]) == web.at(plane, row));
}

void checkWeb(const PhotometricWeb& web) {
    checkAngles(web.vertical);
    checkAngles(web.horizontal);
    require(web.candela.size() == web.vertical.size() * web.horizontal.size());
    require(std::all_of(web.candela.begin(), web.candela.end(), [](double value) { return value >= 0; }));
    if (web.tilt)
        require(web.tilt->angles.size() == web.tilt->factors.size());
    const double most = quor::ies::maxIntensity(web);
    const double flux = quor::ies::luminousFlux(web);
    require(std::isfinite(most) && flux >= 0 && flux <= 4 * std::numbers::pi * most * kRounding);
    checkIntensities(web, most);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto web = quor::ies::readWeb(bytes);
    if (web.ok()) {
        checkWeb(web.value());
        return 0;
    }
    require(web.error().line <= size && web.error().excerpt.size() <= 40);
    require(!quor::ies::describe(web.error(), L"lamp.ies").empty());
    return 0;
}
