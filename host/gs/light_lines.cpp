// What a light shows of how it shines.
#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/light_web.h"
#include "host/gs/scene.h"
#include "host/gs/web_directions.h"
#include "host/ies/reader.h"

#include <cmath>
#include <numbers>

namespace quor::gs {

namespace {

// How far a light that aims at its own place is shown to reach, in drawing units.
constexpr double kUsualReach = 10;
constexpr int kCircleSteps = 48;
constexpr int kGenerators = 8;
constexpr double kWholeTurn = 2 * std::numbers::pi;

using Points = std::vector<ZrGePoint3d>;

void addLine(Points& points, const ZrGePoint3d& from, const ZrGePoint3d& to) {
    points.push_back(from);
    points.push_back(to);
}

// Where a light shines, and two directions at right angles to that.
struct Beam {
    explicit Beam(const ZrDbLightData& light) {
        const ZrGeVector3d toTarget = light.target - light.position;
        if (toTarget.length() > 1e-12) {
            reach = toTarget.length();
            along = toTarget / reach;
        }
        across = along.perpVector();
        over = along.crossProduct(across);
    }
    double reach = kUsualReach;
    ZrGeVector3d along = -ZrGeVector3d::kZAxis;
    ZrGeVector3d across;
    ZrGeVector3d over;
};

// A cone from its tip to the plane at right angles to it through the target; `angle` is the full one.
void addCone(Points& points, const ZrDbLightData& light, const Beam& beam, double angle) {
    const double radius = beam.reach * std::tan(angle / 2);
    if (!(radius > 0) || !std::isfinite(radius))
        return;
    const ZrGePoint3d center = light.position + beam.along * beam.reach;
    const auto rim = [&](int step, int steps) {
        const double turn = kWholeTurn * step / steps;
        return center + beam.across * (radius * std::cos(turn)) + beam.over * (radius * std::sin(turn));
    };
    for (int i = 0; i < kCircleSteps; ++i)
        addLine(points, rim(i, kCircleSteps), rim((i + 1) % kCircleSteps, kCircleSteps));
    for (int i = 0; i < kGenerators; ++i)
        addLine(points, light.position, rim(i, kGenerators));
}

// A closed curve around the light, as far away in each direction as it is bright there.
struct PolarCurve {
    double firstPlane; // the horizontal angles of the two halves of a curve of type C
    double secondPlane;
};

void addCurve(Points& points, const ies::PhotometricWeb& web, const ZrGeMatrix3d& placement, double perCandela,
              const PolarCurve& curve) {
    constexpr int kSteps = 72; // for a half turn
    const auto at = [&](double plane, double vertical) {
        const double away = ies::intensityAt(web, plane, vertical) * perCandela;
        return placement * (ZrGePoint3d() + webDirection(web.photometry, plane, vertical) * away);
    };
    const bool aboutVertical = web.photometry == ies::Photometry::C;
    const double lowest = aboutVertical ? 0 : -90;
    for (const double plane : {curve.firstPlane, curve.secondPlane})
        for (int i = 0; i < kSteps; ++i)
            addLine(points, at(plane, lowest + 180.0 * i / kSteps), at(plane, lowest + 180.0 * (i + 1) / kSteps));
}

// The same in the plane across, of webs whose planes turn about a horizontal axis.
void addRound(Points& points, const ies::PhotometricWeb& web, const ZrGeMatrix3d& placement, double perCandela) {
    constexpr int kSteps = 144;
    const auto at = [&](int step) {
        const double horizontal = -180 + 360.0 * step / kSteps;
        const double away = ies::intensityAt(web, horizontal, 0) * perCandela;
        return placement * (ZrGePoint3d() + webDirection(web.photometry, horizontal, 0) * away);
    };
    for (int i = 0; i < kSteps; ++i)
        addLine(points, at(i), at(i + 1));
}

void addWeb(Points& points, const ZrDbLightData& light, const Beam& beam) {
    const auto file = db::findKeptWeb(light.webFile);
    if (!file)
        return;
    const ies::LoadedWeb loaded = ies::loadWeb(*file);
    if (!loaded.ok())
        return;
    const ies::PhotometricWeb& web = (*loaded)->web;
    const double brightest = ies::maxIntensity(web);
    if (!(brightest > 0))
        return;
    const ZrGeMatrix3d placement = webPlacement(light.position, beam.along, light.webRotation);
    const double perCandela = beam.reach / brightest;
    if (web.photometry == ies::Photometry::C) {
        addCurve(points, web, placement, perCandela, {0, 180});
        addCurve(points, web, placement, perCandela, {90, 270});
    } else {
        addCurve(points, web, placement, perCandela, {0, 180});
        addRound(points, web, placement, perCandela);
    }
}

void addArrow(Points& points, const ZrDbLightData& light, const Beam& beam) {
    constexpr double kHead = 0.2; // of the length
    const ZrGePoint3d tip = light.position + beam.along * kUsualReach;
    addLine(points, light.position, tip);
    for (const double side : {-1.0, 1.0})
        addLine(points, tip, tip - beam.along * (kUsualReach * kHead) + beam.across * (side * kUsualReach * kHead / 2));
}

} // namespace

std::vector<ZrGePoint3d> Scene::lightLines(const ZrDbObjectId& light) {
    const ZrDbObjectPointer<ZrDbLight> open(light, ZrDb::kForRead);
    return open ? lightLines(*open) : Points();
}

std::vector<ZrGePoint3d> Scene::lightLines(const ZrDbLight& light) {
    Points points;
    const auto& data = static_cast<const ZrDbLightData&>(*light.hostData());
    const Beam beam(data);
    if (data.hasTarget)
        addLine(points, data.position, data.target);
    if (data.type == DrawableType::kSpotLight) {
        addCone(points, data, beam, data.hotspot);
        addCone(points, data, beam, data.falloff);
    } else if (data.type == DrawableType::kWebLight) {
        addWeb(points, data, beam);
    } else if (data.type == DrawableType::kDistantLight) {
        addArrow(points, data, beam);
    }
    return points;
}

} // namespace quor::gs
