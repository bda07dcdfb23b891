#include "host/gs/light_distribution.h"

#include "host/db/light_web.h"
#include "host/gs/web_directions.h"

namespace quor::gs {

namespace {

// The direction at a place of the square, from -1 to 1 each way.
ZrGeVector3d directionAt(double across, double up) {
    const double z = std::abs(across) + std::abs(up) - 1;
    if (z > 0) {
        const double outer = std::copysign(1 - std::abs(up), across);
        up = std::copysign(1 - std::abs(across), up);
        across = outer;
    }
    return ZrGeVector3d(across, up, z).normal(ZrGeTol(0, 0));
}

} // namespace

LightDistribution distributionOf(const ies::PhotometricWeb& web) {
    LightDistribution distribution;
    distribution.shares.reserve(static_cast<std::size_t>(LightDistribution::kSide) * LightDistribution::kSide);
    const double brightest = ies::maxIntensity(web);
    constexpr double half = (LightDistribution::kSide - 1) / 2.0;
    for (int row = 0; row < LightDistribution::kSide; ++row) {
        for (int column = 0; column < LightDistribution::kSide; ++column) {
            const WebAngles angles = webAngles(web.photometry, directionAt(column / half - 1, row / half - 1));
            const double candela = ies::intensityAt(web, angles.horizontal, angles.vertical);
            distribution.shares.push_back(brightest > 0 ? static_cast<float>(candela / brightest) : 0.0F);
        }
    }
    return distribution;
}

std::shared_ptr<const LightDistribution> LightDistributions::of(const ZrString& file) {
    Known& known = known_[file];
    if (known.isFresh)
        return known.distribution;
    known.isFresh = true;
    const auto path = db::findKeptWeb(file);
    const std::shared_ptr<const ies::WebFile> before = known.web.lock();
    std::shared_ptr<const ies::WebFile> web;
    if (path)
        if (const ies::LoadedWeb loaded = ies::loadWeb(*path); loaded.ok())
            web = *loaded;
    if (web == nullptr)
        known.distribution = nullptr;
    else if (web != before || known.distribution == nullptr)
        known.distribution = std::make_shared<const LightDistribution>(distributionOf(web->web));
    known.web = web;
    return known.distribution;
}

void LightDistributions::lookAgain() {
    for (auto& [file, known] : known_)
        known.isFresh = false;
}

} // namespace quor::gs
