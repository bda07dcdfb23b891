// A light as people are told of it: what counts for its kind, and nothing of what does not.
#pragma once

#include "sdk/db/light.h"
#include "sdk/gi/photometric_intensity.h"

#include <optional>

namespace quor {

enum class LightKind { Point, TargetPoint, Spot, FreeSpot, Web, FreeWeb, Distant };
inline constexpr std::size_t kLightKinds = 7;

struct LightFacts {
    ZrDbHandle handle;
    ZrString name;
    LightKind kind = LightKind::Point;
    ZrString layout; // of the sheet that it is on; empty: model space
    ZrString layer;
    bool on = true;

    // World coordinates, drawing units. A distant light is nowhere; a free light has no target.
    std::optional<ZrGePoint3d> position;
    std::optional<ZrGePoint3d> target;
    // Of length 1; none for point lights, which shine all around.
    std::optional<ZrGeVector3d> direction;
    // Full angles of spot lights in degrees, as they were typed.
    std::optional<double> hotspot;
    std::optional<double> falloff;

    double factor = 1;
    ZrGiLightAttenuation attenuation;
    // The intensity in the unit that it is given in is the number that the drawing has; the others are converted.
    // Parallel light has no flux and no illuminance at a distance. A web shines as its file says, so that its flux does
    // not follow from an intensity. Without lighting units an illuminance has no unit, and nothing is converted to it
    // or from it.
    PhysicalIntensityMethod method = PhysicalIntensityMethod::kPeakIntensity;
    std::optional<double> candela;
    std::optional<double> lumen;
    std::optional<double> illuminance;
    std::optional<double> illuminanceDistance; // of a light that could have an illuminance

    std::optional<LampColorPreset> lampPreset; // one of the two
    std::optional<double> lampKelvin;
    ZrCmColor color;
    ZrString webFile;
    std::optional<double> webFlux;           // of the file in lumen, where the drawing has it
    std::optional<ZrGeVector3d> webRotation; // of web lights, as it was given
    ZrGiShadowParameters shadows;
};

// The symbol of the unit of illuminance by LIGHTINGUNITS; empty where it has none.
[[nodiscard]] const wchar_t* illuminanceUnit(int lightingUnits);

// To so many significant digits, at most 17.
[[nodiscard]] double roundedTo(int digits, double value);

// As an angle in degrees was typed: the last digits that the way through radians adds are left out.
[[nodiscard]] double typedDegrees(double radians);

[[nodiscard]] LightKind kindOf(const ZrDbLight& light);
// Whether the kind aims with a cone, or shines as a web says.
[[nodiscard]] bool isSpot(LightKind kind);
[[nodiscard]] bool isWeb(LightKind kind);
// The intensity in the unit of a method; nothing where the light has none (see LightFacts).
[[nodiscard]] std::optional<double> intensityOf(const ZrDbLight& light, PhysicalIntensityMethod wanted,
                                                const PhotometricUnits& units);
[[nodiscard]] LightFacts factsOf(const ZrDbLight& light, const ZrString& layout, const PhotometricUnits& units);

} // namespace quor
