#include "fuzz/support/drawing_state.h"

#include "host/sys/utf8.h"
#include "sdk/cm/color.h"
#include "sdk/db/light.h"

#include <algorithm>
#include <cmath>

namespace quor::fuzz {

namespace {

// Before this version a drawing has no dictionaries: its lighting units last for the session.
constexpr std::wstring_view kFirstWithDictionaries = L"AC1012";
// Before this version a drawing has no place for the names of colours.
constexpr const wchar_t* kFirstWithColorNames = L"AC1018";

class Notes {
public:
    explicit Notes(db::Database& drawing) : hasColorNames_(drawing.version() >= kFirstWithColorNames) {}

    void text(const char* what, const ZrString& text) { facts_.push_back({what, text, 0}); }
    void number(const char* what, double number) { facts_.push_back({what, {}, number}); }
    template <class Choice>
    void choice(const char* what, Choice choice) {
        number(what, static_cast<double>(choice));
    }
    template <class Triple>
    void triple(const char* what, const Triple& triple) {
        number(what, triple.x);
        number(what, triple.y);
        number(what, triple.z);
    }
    void color(const ZrCmColor& color) {
        number("colour", color.rawColor());
        text("colour book", hasColorNames_ ? color.bookName() : ZrString());
        text("colour name", hasColorNames_ ? color.colorName() : ZrString());
    }

    [[nodiscard]] DrawingState take() { return std::move(facts_); }

private:
    DrawingState facts_;
    bool hasColorNames_;
};

void noteShadows(const ZrDbLight& light, Notes& notes) {
    ZrGiShadowParameters shadows;
    notes.choice("shadow record", light.shadowParameters(shadows));
    notes.choice("shadows on", shadows.shadowsOn());
    notes.choice("shadow type", shadows.shadowType());
    notes.number("shadow map size", shadows.shadowMapSize());
    notes.number("shadow softness", shadows.shadowMapSoftness());
    notes.number("shadow samples", shadows.shadowSamples());
    notes.choice("shape is visible", shadows.shapeVisibility());
    notes.choice("shape", shadows.extendedLightShape());
    notes.number("shape length", shadows.extendedLightLength());
    notes.number("shape width", shadows.extendedLightWidth());
    notes.number("shape radius", shadows.extendedLightRadius());
}

void noteAttenuation(const ZrGiLightAttenuation& attenuation, Notes& notes) {
    notes.choice("attenuation", attenuation.attenuationType());
    notes.choice("limits in use", attenuation.useLimits());
    notes.number("start limit", attenuation.startLimit());
    notes.number("end limit", attenuation.endLimit());
}

void notePhotometry(const ZrDbLight& light, Notes& notes) {
    notes.choice("intensity method", light.physicalIntensityMethod());
    notes.number("photometric intensity", light.physicalIntensity());
    notes.number("illuminance distance", light.illuminanceDistance());
    notes.choice("lamp colour type", light.lampColorType());
    notes.number("lamp temperature", light.lampColorTemp());
    notes.choice("lamp preset", light.lampColorPreset());
    notes.text("web file", light.webFile());
    notes.number("web flux", light.webFlux());
    notes.choice("web symmetry", light.webSymmetry());
    ZrGeVector3d rotation;
    notes.choice("web rotation status", light.webRotation(rotation));
    notes.triple("web rotation", rotation);
}

void noteLight(const ZrDbLight& light, Notes& notes) {
    notes.text("name", light.name());
    notes.choice("kind", light.lightType());
    notes.choice("on", light.isOn());
    notes.number("intensity", light.intensity());
    notes.color(light.lightColor());
    notes.triple("position", light.position());
    notes.triple("target", light.targetLocation());
    notes.choice("has target", light.hasTarget());
    notes.number("hotspot", light.hotspotAngle());
    notes.number("falloff", light.falloffAngle());
    notes.choice("glyph", light.glyphDisplay());
    notes.choice("plots glyph", light.plotsGlyph());
    notes.choice("visibility", light.visibility());
    noteAttenuation(light.lightAttenuation(), notes);
    noteShadows(light, notes);
    notePhotometry(light, notes);
}

void noteSpace(db::Database& drawing, ZrDbObjectId space, Notes& notes) {
    for (const ZrDbObjectId id : drawing.entities(space)) {
        notes.text("type", drawing.typeName(id));
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        if (!entity)
            continue;
        notes.text("layer", entity->layer());
        if (const ZrDbLight* light = zrrxCast<ZrDbLight>(static_cast<const ZrRxObject*>(entity.object())))
            noteLight(*light, notes);
    }
}

bool isClose(double before, double after) {
    return before == after || std::abs(before - after) <= 1e-12 * std::max(std::abs(before), std::abs(after));
}

std::string shown(const Fact& fact) { return fact.what + " " + toUtf8(fact.text) + " " + std::to_string(fact.number); }

} // namespace

DrawingState stateOf(db::Database& drawing) {
    Notes notes(drawing);
    notes.text("version", drawing.version());
    if (drawing.version() >= kFirstWithDictionaries)
        notes.text("lighting units", drawing.dictionaryVariable(L"LIGHTINGUNITS").value_or(L"none"));
    notes.choice("model tab", drawing.isModelTab());
    notes.triple("origin", drawing.ucs().origin);
    notes.triple("x axis", drawing.ucs().xAxis);
    notes.triple("y axis", drawing.ucs().yAxis);
    notes.number("layers", static_cast<double>(drawing.layerIds().size()));
    noteSpace(drawing, drawing.interface().modelSpaceId(), notes);
    for (const db::LayoutInfo& layout : drawing.layouts()) {
        notes.text("layout", layout.name);
        noteSpace(drawing, layout.blockId, notes);
    }
    return notes.take();
}

std::string difference(const DrawingState& before, const DrawingState& after) {
    const auto same = [](const Fact& one, const Fact& other) {
        return one.what == other.what && one.text == other.text && isClose(one.number, other.number);
    };
    const auto [old, now] = std::mismatch(before.begin(), before.end(), after.begin(), after.end(), same);
    if (old == before.end() && now == after.end())
        return {};
    return (old == before.end() ? "nothing" : shown(*old)) + " -> " + (now == after.end() ? "nothing" : shown(*now));
}

} // namespace quor::fuzz
