// Webs made from a formula instead of a file.
#pragma once

#include "host/ies/photometric_web.h"
#include "host/ies/symmetry.h"

#include <cmath>
#include <functional>
#include <numbers>

namespace quor::ies {

inline std::vector<double> steps(double first, double last, double step) {
    std::vector<double> angles;
    for (double angle = first; angle <= last; angle += step)
        angles.push_back(angle);
    return angles;
}

inline double sine(double degrees) { return std::sin(degrees * std::numbers::pi / 180); }
inline double cosine(double degrees) { return std::cos(degrees * std::numbers::pi / 180); }

// The intensity of each direction by its horizontal and vertical angle in degrees.
using Intensity = std::function<double(double horizontal, double vertical)>;

inline PhotometricWeb made(Photometry photometry, std::vector<double> vertical, std::vector<double> horizontal,
                           const Intensity& intensity) {
    PhotometricWeb web;
    web.photometry = photometry;
    for (const double h : horizontal)
        for (const double v : vertical)
            web.candela.push_back(intensity(h, v));
    web.vertical = std::move(vertical);
    web.horizontal = std::move(horizontal);
    web.symmetry = symmetryOf(web);
    return web;
}

} // namespace quor::ies
