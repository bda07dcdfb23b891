// The light entity.
#pragma once

#include "sdk/db/entity.h"
#include "sdk/ge/point3d.h"
#include "sdk/ge/vector3d.h"
#include "sdk/gi/light_attenuation.h"
#include "sdk/gi/shadow_parameters.h"

struct ZrDbLightData;

// How the photometric intensity is given.
enum class PhysicalIntensityMethod { kPeakIntensity = 0, kFlux = 1, kIlluminance = 2 };
// What gives the colour of the lamp.
enum class LampColorType { kKelvin = 0, kPreset = 1 };
// The lamp presets, in the order of the numbers in drawings; 14 is a custom colour.
enum class LampColorPreset {
    kD65White = 0,
    kFluorescent,
    kCoolWhite,
    kWhiteFluorescent,
    kDaylightFluorescent,
    kIncandescent,
    kXenon,
    kHalogen,
    kQuartz,
    kMetalHalide,
    kMercury,
    kPhosphorMercury,
    kHighPressureSodium,
    kLowPressureSodium,
    kCustom,
};
// What the planes of a photometric web mirror, in its own angles.
enum class WebSymmetry {
    kUnknown = -1,
    kNone = 0,    // all planes are given
    kAxial,       // the same all around
    kQuadrants,   // mirrored at the planes 0-180 and 90-270
    kMirror0_180, // mirrored at the plane 0-180
    kMirror90_270,
    kMirrorAtZero, // webs with a horizontal axis: mirrored at the plane 0
};
enum class GlyphDisplay { kAutomatic = 0, kOn = 1, kOff = 2 };
enum class DrawableType { kDistantLight = 1, kPointLight = 2, kSpotLight = 3, kWebLight = 10 };

// Every setter answers a status, and changes nothing when it refuses: eInvalidInput for a value out of its bounds or
// one that is no finite number, eNotOpenForWrite for a light of a drawing that is not open for write. Points are in
// world coordinates and drawing units, angles in radians.
class ZrDbLight : public ZrDbEntity {
public:
    // On, white, at the origin, its target 10 below.
    ZrDbLight();

    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // Up to 255 characters; empty, longer, or with a control character: eInvalidName.
    [[nodiscard]] const ZrString& name() const;
    Quor::ErrorStatus setName(const ZrString& name);

    // 1 distant, 2 point, 3 spot, 10 web. A web light that becomes another one loses its web.
    [[nodiscard]] DrawableType lightType() const;
    Quor::ErrorStatus setLightType(DrawableType type);
    Quor::ErrorStatus setLightType(int type) { return setLightType(static_cast<DrawableType>(type)); }

    [[nodiscard]] bool isOn() const;
    Quor::ErrorStatus setOn(bool on);

    // A factor, not negative.
    [[nodiscard]] double intensity() const;
    Quor::ErrorStatus setIntensity(double intensity);

    // The colour that the light sends out (its filter colour in photometric lighting).
    [[nodiscard]] const ZrCmColor& lightColor() const;
    Quor::ErrorStatus setLightColor(const ZrCmColor& color);

    [[nodiscard]] ZrGePoint3d position() const;
    Quor::ErrorStatus setPosition(const ZrGePoint3d& position);
    [[nodiscard]] ZrGePoint3d targetLocation() const;
    Quor::ErrorStatus setTargetLocation(const ZrGePoint3d& target);
    // From the position to the target, of length 1; zero when both are the same point. Setting it keeps the position
    // and puts the target so far from it as it was before (1 if that was no distance).
    [[nodiscard]] ZrGeVector3d lightDirection() const;
    Quor::ErrorStatus setLightDirection(const ZrGeVector3d& direction);
    // Whether the target is shown and can be gripped.
    [[nodiscard]] bool hasTarget() const;
    Quor::ErrorStatus setHasTarget(bool hasTarget);

    // Full cone angles: 0 <= hotspot <= falloff <= 160 degrees.
    [[nodiscard]] double hotspotAngle() const;
    [[nodiscard]] double falloffAngle() const;
    Quor::ErrorStatus setHotspotAndFalloff(double hotspot, double falloff);

    [[nodiscard]] const ZrGiLightAttenuation& lightAttenuation() const;
    Quor::ErrorStatus setLightAttenuation(const ZrGiLightAttenuation& attenuation);

    // Copies the record into `parameters`.
    Quor::ErrorStatus shadowParameters(ZrGiShadowParameters& parameters) const;
    Quor::ErrorStatus setShadowParameters(const ZrGiShadowParameters& parameters);

    [[nodiscard]] GlyphDisplay glyphDisplay() const;
    Quor::ErrorStatus setGlyphDisplay(GlyphDisplay display);
    Quor::ErrorStatus setGlyphDisplay(int display) { return setGlyphDisplay(static_cast<GlyphDisplay>(display)); }
    [[nodiscard]] bool plotsGlyph() const;
    Quor::ErrorStatus setPlotsGlyph(bool plots);

    // Photometric data. The value is in the unit of the method: candela, lumen, or the illuminance at the distance.
    [[nodiscard]] PhysicalIntensityMethod physicalIntensityMethod() const;
    Quor::ErrorStatus setPhysicalIntensityMethod(PhysicalIntensityMethod method);
    [[nodiscard]] double physicalIntensity() const;
    Quor::ErrorStatus setPhysicalIntensity(double intensity);
    // Drawing units, not negative.
    [[nodiscard]] double illuminanceDistance() const;
    Quor::ErrorStatus setIlluminanceDistance(double distance);
    [[nodiscard]] LampColorType lampColorType() const;
    Quor::ErrorStatus setLampColorType(LampColorType type);
    // Kelvin, 1000 to 20000.
    [[nodiscard]] double lampColorTemp() const;
    Quor::ErrorStatus setLampColorTemp(double kelvin);
    [[nodiscard]] LampColorPreset lampColorPreset() const;
    Quor::ErrorStatus setLampColorPreset(LampColorPreset preset);

    // The photometric web file. Setting it reads it: a file that cannot be read, or is no photometric web, is refused
    // and `reason`, where it is wanted, tells why: eFileNotFound, eFileAccessErr, or eUnsupportedFileFormat with the
    // line. A light of another type than web has none (eNotApplicable); a name with control characters is
    // eInvalidInput. An empty path takes the web away.
    [[nodiscard]] const ZrString& webFile() const;
    Quor::ErrorStatus setWebFile(const ZrString& path, ZrString* reason = nullptr);
    // The luminous flux of the web in lumen, found by integration when the file was set; 0 without a web.
    [[nodiscard]] double webFlux() const;
    // How the web repeats itself; the file tells, and kUnknown stands for one that cannot be read now.
    [[nodiscard]] WebSymmetry webSymmetry() const;
    // The rotation of the web about X, Y and Z, kept as it was given.
    Quor::ErrorStatus webRotation(ZrGeVector3d& rotation) const;
    Quor::ErrorStatus setWebRotation(const ZrGeVector3d& rotation);

private:
    // Sets a value when it is accepted and the light may be changed.
    template <class T, class Data>
    Quor::ErrorStatus change(bool accepted, T Data::*member, const T& value);
    [[nodiscard]] const ZrDbLightData& data() const;
};

// What lists show of a light.
struct ZrDbLightSummary {
    ZrString name;
    int type = 0; // as lightType() numbers them: 1 distant, 2 point, 3 spot, 10 web
};

// Reads it without opening the light, which for lights that nobody has opened yet costs a fraction. Refused as opening
// for read is: eNullObjectId, eWasErased, eWasOpenForWrite; eNotThatKindOfClass for what is not exactly a ZrDbLight. A
// refusal leaves `summary` alone.
Quor::ErrorStatus zrdbLightSummary(ZrDbObjectId id, ZrDbLightSummary& summary);
