#include "host/ies/polar_curve.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quor::ies {

namespace {

// An intensity in a plane: the angle goes from the middle of the beam, positive to the right.
struct Ray {
    double angle = 0;
    double candela = 0;
};

struct Profile {
    PolarPlane plane = PolarPlane::C0_180;
    std::vector<Ray> rays;
};

// Between given angles the intensity is linear in the angle, which is bent in polar coordinates.
constexpr double kStep = 1;

// The angles themselves, and as many between them as make the curve smooth.
std::vector<double> denseAngles(const std::vector<double>& given) {
    std::vector<double> angles{given.front()};
    for (std::size_t i = 1; i < given.size(); ++i) {
        const double from = given[i - 1];
        const auto parts = static_cast<int>(std::max(1.0, std::ceil((given[i] - from) / kStep)));
        for (int part = 1; part < parts; ++part)
            angles.push_back(from + (given[i] - from) * part / parts);
        angles.push_back(given[i]);
    }
    return angles;
}

// The half plane at `opposite` is the left one; its rays come first, from the top down.
Profile verticalProfile(const PhotometricWeb& web, PolarPlane plane, double own, double opposite) {
    Profile profile{plane, {}};
    const std::vector<double> angles = denseAngles(web.vertical);
    for (auto angle = angles.rbegin(); angle != angles.rend(); ++angle)
        profile.rays.push_back({-*angle, intensityAt(web, opposite, *angle)});
    for (const double angle : angles)
        profile.rays.push_back({angle, intensityAt(web, own, angle)});
    return profile;
}

std::vector<Profile> profilesOfC(const PhotometricWeb& web) {
    std::vector<Profile> profiles{verticalProfile(web, PolarPlane::C0_180, 0, 180)};
    if (web.symmetry != Symmetry::Axial)
        profiles.push_back(verticalProfile(web, PolarPlane::C90_270, 90, 270));
    return profiles;
}

// Horizontal angles that are mirrored at the plane 0 are there on both sides of it.
std::vector<double> bothSides(const PhotometricWeb& web) {
    std::vector<double> angles = web.horizontal;
    if (web.symmetry == Symmetry::MirrorAtZero)
        for (const double angle : web.horizontal)
            if (angle > 0)
                angles.insert(angles.begin(), -angle);
    return angles;
}

std::vector<Profile> profilesOfAOrB(const PhotometricWeb& web) {
    Profile horizontal{PolarPlane::Horizontal, {}};
    for (const double angle : denseAngles(bothSides(web)))
        horizontal.rays.push_back({angle, intensityAt(web, angle, 0)});
    Profile vertical{PolarPlane::Vertical, {}};
    for (const double angle : denseAngles(web.vertical))
        vertical.rays.push_back({angle, intensityAt(web, 0, angle)});
    return {horizontal, vertical};
}

PolarPoint pointOf(const Ray& ray, double outermost) {
    const double radians = ray.angle * std::numbers::pi / 180;
    const double length = ray.candela / outermost;
    return {length * std::sin(radians), length * std::cos(radians)};
}

} // namespace

std::vector<double> ringValues(double largest) {
    if (!(largest > 0) || !std::isfinite(largest))
        return {};
    constexpr int kMostRings = 5;
    constexpr double kRound[] = {1, 2, 2.5, 5, 10};
    constexpr double kRounding = 1e-9;
    const double decade = std::pow(10, std::floor(std::log10(largest / kMostRings)));
    for (const double round : kRound) {
        const double step = round * decade;
        const double count = std::ceil(largest / step * (1 - kRounding));
        if (count > kMostRings)
            continue;
        std::vector<double> rings;
        for (int ring = 1; ring <= count; ++ring)
            rings.push_back(ring * step);
        return rings;
    }
    return {largest};
}

PolarDiagram polarDiagram(const PhotometricWeb& web) {
    if (web.candela.empty())
        return {};
    const std::vector<Profile> profiles = web.photometry == Photometry::C ? profilesOfC(web) : profilesOfAOrB(web);
    double largest = 0;
    for (const Profile& profile : profiles)
        for (const Ray& ray : profile.rays)
            largest = std::max(largest, ray.candela);
    PolarDiagram diagram;
    diagram.rings = ringValues(largest);
    if (diagram.rings.empty())
        return diagram;
    constexpr double kAbove = -1e-3; // less than that is not seen
    for (const Profile& profile : profiles) {
        PolarCurve& curve = diagram.curves.emplace_back(PolarCurve{profile.plane, {}});
        for (const Ray& ray : profile.rays) {
            curve.points.push_back(pointOf(ray, diagram.rings.back()));
            diagram.reachesUp = diagram.reachesUp || curve.points.back().y < kAbove;
        }
    }
    return diagram;
}

} // namespace quor::ies
