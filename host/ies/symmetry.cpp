#include "host/ies/symmetry.h"

#include <algorithm>
#include <cmath>

namespace quor::ies {

namespace {

constexpr double kCircle = 360;

// From 0 up to, not including, 360.
double aroundOnce(double angle) {
    const double rest = std::fmod(angle, kCircle);
    const double turned = rest < 0 ? rest + kCircle : rest;
    // The smallest negative angles are rounded to a whole turn.
    return turned == kCircle ? 0 : turned;
}

} // namespace

AngleRange verticalRange(Photometry photometry) {
    return photometry == Photometry::C ? AngleRange{0, 180} : AngleRange{-90, 90};
}

AngleRange horizontalRange(Photometry photometry) {
    return photometry == Photometry::C ? AngleRange{0, kCircle} : AngleRange{-90, 90};
}

Symmetry symmetryOf(const PhotometricWeb& web) {
    const double first = web.horizontal.front();
    const double last = web.horizontal.back();
    if (web.photometry != Photometry::C)
        return first == 0 && last > 0 ? Symmetry::MirrorAtZero : Symmetry::None;
    if (web.horizontal.size() == 1)
        return Symmetry::Axial;
    if (first == 0 && last == 90)
        return Symmetry::Quadrants;
    if (first == 0 && last == 180)
        return Symmetry::Mirror0_180;
    if (first == 90 && last == 270)
        return Symmetry::Mirror90_270;
    return Symmetry::None;
}

bool lacksLastPlane(const PhotometricWeb& web) {
    const std::vector<double>& planes = web.horizontal;
    constexpr std::size_t kFewest = 3; // two planes say nothing of a step around the circle
    if (web.photometry != Photometry::C || symmetryOf(web) != Symmetry::None || planes.size() < kFewest)
        return false;
    double widest = 0;
    double narrowest = kCircle;
    for (std::size_t i = 1; i < planes.size(); ++i) {
        widest = std::max(widest, planes[i] - planes[i - 1]);
        narrowest = std::min(narrowest, planes[i] - planes[i - 1]);
    }
    constexpr double kRounding = 1e-3; // of angles written with few digits
    const double missing = planes.front() + kCircle - planes.back();
    if (planes.front() != 0 && std::max(widest, missing) - std::min(narrowest, missing) > 2 * kRounding)
        return false;
    return missing > 0 && missing <= widest + kRounding;
}

bool lacksPlanes(const PhotometricWeb& web) {
    const AngleRange all = horizontalRange(web.photometry);
    const bool endsEarly = web.horizontal.back() < all.last;
    switch (web.symmetry) {
    case Symmetry::None:
        return web.horizontal.back() < web.horizontal.front() + (all.last - all.first);
    case Symmetry::MirrorAtZero:
        return endsEarly;
    default:
        return false;
    }
}

bool lacksRows(const PhotometricWeb& web) {
    const AngleRange all = verticalRange(web.photometry);
    const double middle = (all.first + all.last) / 2;
    const double first = web.vertical.front();
    const double last = web.vertical.back();
    return !((first == all.first || first == middle) && (last == middle || last == all.last) && first < last);
}

double foldedHorizontal(const PhotometricWeb& web, double horizontal) {
    if (horizontal >= web.horizontal.front() && horizontal <= web.horizontal.back())
        return horizontal;
    const double around = aroundOnce(horizontal);
    const double fromZero = std::min(around, kCircle - around);
    switch (web.symmetry) {
    case Symmetry::Axial:
        return web.horizontal.front();
    case Symmetry::Quadrants:
        return std::min(fromZero, 180 - fromZero);
    case Symmetry::Mirror0_180:
    case Symmetry::MirrorAtZero:
        return fromZero;
    case Symmetry::Mirror90_270:
        return around < 90 ? 180 - around : around > 270 ? 540 - around : around;
    case Symmetry::None:
        break;
    }
    // The same direction by the name that the planes use for it.
    if (around > web.horizontal.back())
        return around - kCircle;
    return around < web.horizontal.front() ? around + kCircle : around;
}

} // namespace quor::ies
